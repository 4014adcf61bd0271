#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// How a failing test shows Qt's texts; found by the test framework beside the types.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}
