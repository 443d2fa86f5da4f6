#pragma once

#include <QtCore/QString>

#include <optional>

// What the find dialog makes of its two boxes.
namespace KOVAVSFDataGridLib {

// The typed words with one "%" between them; nothing when only blanks were typed.
std::optional<QString> prepareFindText(const QString &typed);

struct FindAnswer
{
    QString strFindText;
    QString strFieldName;
    bool bIsAppointField = false; // whether one field was chosen
    bool unloads = false;         // whether the dialog is done
};

FindAnswer pressFind(const QString &typed, const QString &fieldComboText);

} // namespace KOVAVSFDataGridLib
