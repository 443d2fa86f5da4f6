#include "ado/rows/MissingValue.h"

#include "ado/Enums.h"

#include <algorithm>

namespace ADODB {

namespace {

// Whether the text contains the name as a whole word.
bool mention(const QString &words, const QString &name)
{
    const auto isPartOfName = [&](qsizetype place) {
        return place >= 0 && place < words.size() &&
               (words[place].isLetterOrNumber() || words[place] == u'_');
    };
    if (name.isEmpty())
        return false;
    for (qsizetype at = words.indexOf(name, 0, Qt::CaseInsensitive); at >= 0;
         at = words.indexOf(name, at + 1, Qt::CaseInsensitive)) {
        if (!isPartOfName(at - 1) && !isPartOfName(at + name.size()))
            return true;
    }
    return false;
}

bool isRequired(const FieldInfo &field)
{
    return (field.attributes & adFldIsNullable) == 0;
}

} // namespace

QString missingField(const QString &words, const std::vector<FieldInfo> &withoutValue)
{
    std::vector<FieldInfo> mentioned;
    std::vector<FieldInfo> required;
    for (const FieldInfo &field : withoutValue) {
        if (mention(words, field.baseColumn.isEmpty() ? field.name : field.baseColumn))
            mentioned.push_back(field);
        if (isRequired(field))
            required.push_back(field);
    }
    // A driver can report a required field as one that accepts Null. If the text names another column too,
    // the required one is meant.
    if (!mentioned.empty()) {
        const auto found = std::ranges::find_if(mentioned, isRequired);
        return found == mentioned.end() ? mentioned.front().name : found->name;
    }
    return required.size() == 1 ? required.front().name : QString();
}

} // namespace ADODB
