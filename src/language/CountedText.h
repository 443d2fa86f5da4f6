#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// A text for users whose words depend on a number: "1 record", "2 records". The number is %1, all other
// arguments come after it. A translation has a form for each kind of number that its language tells apart; a
// form need not contain the number.
class CountedText
{
public:
    constexpr CountedText(const char *context, const char *source) : m_context(context), m_source(source) {}

    // The number is written with commas between the thousands.
    QString operator()(qint64 count) const;
    // The same, with the number as the caller writes it, and with other arguments.
    template<typename... Others>
    QString arg(qint64 count, const QString &number, const Others &...others) const
    {
        QString form = formFor(count);
        if (form.contains(QLatin1String("%1")))
            return form.arg(number, others...);
        if constexpr (sizeof...(others) > 0)
            return form.arg(others...);
        return form;
    }

private:
    QString formFor(qint64 count) const;

    const char *m_context;
    const char *m_source;
};

// Creates the counted texts of one namespace. It is named `counted` there, because tools/translations tells
// lupdate so.
struct CountedTextTable
{
    const char *context;

    constexpr CountedText operator()(const char *source) const { return {context, source}; }
};

} // namespace KOVAVSFDataGridLib
