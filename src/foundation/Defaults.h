#pragma once

#include "foundation/DefaultsTable.h"

#include <QHash>
#include <QObject>
#include <QSettings>

#include <memory>

namespace tessara {

/// The user's settings: values for this run, over the stored ones, over the registered defaults.
/// Belongs to the main thread.
///
/// A fresh object stores nothing: the start-up code attaches a store, tests leave it out.
class Defaults final : public QObject {
    Q_OBJECT

public:
    /// The settings that the whole program shares.
    static Defaults& standard();

    Defaults() = default;

    /// Reads from and writes to `store` from now on.
    void attach(std::unique_ptr<QSettings> store);

    /// The value of a key in the type that the table gives it; false, 0 or empty for a key that
    /// was never set and has no default.
    bool boolForKey(QStringView key) const { return value(key).toBool(); }
    qint64 integerForKey(QStringView key) const { return value(key).toLongLong(); }
    double doubleForKey(QStringView key) const { return value(key).toDouble(); }
    QString stringForKey(QStringView key) const { return value(key).toString(); }
    QVariant value(QStringView key) const;

    /// Stores a value and tells the observers, unless it is the value already.
    void setValue(QStringView key, const QVariant& value);
    void remove(QStringView key);
    /// Replaces a value that is out of bounds where it stands: in the store, or for this run only.
    void correctValue(QStringView key, const QVariant& value);

    /// Sets a value for this run only, from text as a user types it.
    /// @return whether there is such a key and the text is a value of its type
    bool overrideForThisRun(QStringView key, const QString& text);
    /// The same for a value that the program itself needs for this run.
    void overrideForThisRun(QStringView key, const QVariant& value);

    /// Writes what is still in memory to the store.
    void synchronize();
    /// The store's file, if it cannot be written; empty otherwise, and without a store.
    QString unwritableFile() const;

Q_SIGNALS:
    void didChange();

private:
    QVariant storedValue(QStringView key) const;

    std::unique_ptr<QSettings> m_store;
    mutable QHash<QString, QVariant> m_values; ///< what was read from the store, or set
    QHash<QString, QVariant> m_overrides;
};

} // namespace tessara
