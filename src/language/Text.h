#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// A text for users. It is written in Chinese. The conversion to
// QString translates it into the application's current language. So
// store a Text, and use a QString of it only for immediate display.
class Text
{
public:
    constexpr Text() = default;
    constexpr Text(const char *context, const char *source) : m_context(context), m_source(source) {}

    operator QString() const { return QCoreApplication::translate(m_context, m_source); }
    QString operator()() const { return *this; }

    template<typename... Arguments>
    QString arg(Arguments &&...arguments) const
    {
        return (*this)().arg(std::forward<Arguments>(arguments)...);
    }

    // Whether a word is this text, either the original or its translation.
    bool is(const QString &word) const { return word == QString::fromUtf8(m_source) || word == (*this)(); }

    constexpr bool isEmpty() const { return *m_source == '\0'; }

private:
    const char *m_context = "";
    const char *m_source = "";
};

// Creates the texts of one namespace. It is named `tr` there, because lupdate looks for that name and uses
// the namespace as the translation context.
struct TextTable
{
    const char *context;

    constexpr Text operator()(const char *source) const { return {context, source}; }
};

} // namespace KOVAVSFDataGridLib
