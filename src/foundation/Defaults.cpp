#include "foundation/Defaults.h"

#include <cmath>

namespace tessara {

namespace {

/// Text of the user as a value of the type, or an invalid one.
QVariant parsed(const QString& text, QMetaType::Type type)
{
    bool ok = true;
    switch (type) {
    case QMetaType::Bool:
        if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 ||
            text == QLatin1String("1"))
            return true;
        if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0 ||
            text == QLatin1String("0"))
            return false;
        return {};
    case QMetaType::LongLong: {
        const qlonglong number = text.toLongLong(&ok);
        return ok ? QVariant(number) : QVariant();
    }
    case QMetaType::Double: {
        const double number = text.toDouble(&ok);
        return ok && std::isfinite(number) ? QVariant(number) : QVariant();
    }
    case QMetaType::QString:
        return text;
    default:
        return {}; // no other type has a form that a user would type
    }
}

} // namespace

Defaults& Defaults::standard()
{
    static Defaults defaults;
    return defaults;
}

void Defaults::attach(std::unique_ptr<QSettings> store)
{
    m_store = std::move(store);
    m_values.clear();
}

QVariant Defaults::storedValue(QStringView key) const
{
    const QString name = key.toString();
    if (const auto found = m_values.constFind(name); found != m_values.cend())
        return *found;
    QVariant stored = m_store ? m_store->value(name) : QVariant();
    m_values.insert(name, stored);
    return stored;
}

QVariant Defaults::value(QStringView key) const
{
    if (const auto found = m_overrides.constFind(key.toString()); found != m_overrides.cend())
        return *found;
    const DefaultEntry* entry = defaultEntry(key);
    Q_ASSERT_X(entry != nullptr, "Defaults", "a key that is not in the table");
    QVariant value = storedValue(key);
    // A store made of text gives text; one that was edited by hand gives anything.
    if (value.isValid() && value.convert(QMetaType(entry->type)) &&
        (entry->type != QMetaType::Double || std::isfinite(value.toDouble())))
        return value;
    return entry->value;
}

void Defaults::setValue(QStringView key, const QVariant& value)
{
    const bool wasOverridden = m_overrides.remove(key.toString()) > 0;
    if (storedValue(key) == value) {
        if (wasOverridden)
            Q_EMIT didChange();
        return;
    }
    m_values.insert(key.toString(), value);
    if (m_store)
        m_store->setValue(key.toString(), value);
    Q_EMIT didChange();
}

void Defaults::remove(QStringView key)
{
    const bool wasOverridden = m_overrides.remove(key.toString()) > 0;
    if (!storedValue(key).isValid()) {
        if (wasOverridden)
            Q_EMIT didChange();
        return;
    }
    m_values.insert(key.toString(), {});
    if (m_store)
        m_store->remove(key.toString());
    Q_EMIT didChange();
}

bool Defaults::overrideForThisRun(QStringView key, const QString& text)
{
    const DefaultEntry* entry = defaultEntry(key);
    if (!entry)
        return false;
    const QVariant value = parsed(text, entry->type);
    if (value.isValid())
        overrideForThisRun(key, value);
    return value.isValid();
}

void Defaults::overrideForThisRun(QStringView key, const QVariant& value)
{
    m_overrides.insert(key.toString(), value);
}

void Defaults::correctValue(QStringView key, const QVariant& value)
{
    if (const auto found = m_overrides.find(key.toString()); found != m_overrides.end())
        *found = value;
    else
        setValue(key, value);
}

void Defaults::synchronize()
{
    if (m_store)
        m_store->sync();
}

QString Defaults::unwritableFile() const
{
    return m_store && !m_store->isWritable() ? m_store->fileName() : QString();
}

} // namespace tessara
