#pragma once

#include <QCoreApplication>

#include <cstddef>

namespace tessara {

/// A text for the user that stands in a table until it is shown, in English: the key under which
/// `localized` looks it up. It is made of a literal alone, so that the texts to be translated can
/// be read off the sources.
class EnglishText {
public:
    constexpr EnglishText() = default;

    constexpr const char* text() const { return m_text; }
    constexpr bool isEmpty() const { return *m_text == '\0'; }

private:
    friend constexpr EnglishText operator""_en(const char* text, std::size_t length);

    constexpr explicit EnglishText(const char* text)
        : m_text(text)
    {
    }

    const char* m_text = "";
};

constexpr EnglishText operator""_en(const char* text, std::size_t /*length*/)
{
    return EnglishText(text);
}

/// A text for the user in the language of the session; empty for an empty one.
inline QString localized(EnglishText english)
{
    return english.isEmpty() ? QString() : QCoreApplication::translate("Tessara", english.text());
}

/// The same of a text that is shown where it stands.
template <std::size_t size>
QString localized(const char (&literal)[size])
{
    return QCoreApplication::translate("Tessara", literal);
}

} // namespace tessara
