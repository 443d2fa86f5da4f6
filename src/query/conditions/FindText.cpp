#include "query/conditions/FindText.h"

#include "query/CharText.h"
#include "query/QueryTexts.h"

namespace KOVAVSFDataGridLib {

std::optional<QString> prepareFindText(const QString &typed)
{
    const QString trimmed = CharText::trim(typed);
    if (trimmed.isEmpty())
        return std::nullopt;
    QString text;
    for (const QChar c : trimmed) {
        const bool isSeparator = c == u'%' || c == u' ' || c == u'\u3000';
        if (!isSeparator)
            text += c;
        else if (!text.endsWith(u'%'))
            text += u'%';
    }
    return text;
}

FindAnswer pressFind(const QString &typed, const QString &fieldComboText)
{
    FindAnswer answer;
    const auto text = prepareFindText(typed);
    if (!text)
        return answer;
    answer.strFindText = *text;
    if (CharText::trim(fieldComboText).isEmpty())
        return answer;
    answer.strFieldName = fieldComboText;
    answer.bIsAppointField = !QueryTexts::AllFields.is(fieldComboText);
    answer.unloads = true;
    return answer;
}

} // namespace KOVAVSFDataGridLib
