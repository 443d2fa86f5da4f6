#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// A text that users read. It is written in Chinese; wherever a QString is needed, it is translated into the
// language that the application has at that moment. So a text is kept as a Text, and a QString of it only as
// long as it is shown.
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

    // Whether a word is this text, as it is written or as it is translated.
    bool is(const QString &word) const { return word == QString::fromUtf8(m_source) || word == (*this)(); }

    constexpr bool isEmpty() const { return *m_source == '\0'; }

private:
    const char *m_context = "";
    const char *m_source = "";
};

// Makes the texts of one namespace. It is called `tr` there, because lupdate looks for that name and takes
// the namespace as the context of the translation.
struct TextTable
{
    const char *context;

    constexpr Text operator()(const char *source) const { return {context, source}; }
};

} // namespace KOVAVSFDataGridLib
