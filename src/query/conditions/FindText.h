#pragma once

#include <QtCore/QString>

#include <optional>

// Converts the input of the find dialog.
namespace KOVAVSFDataGridLib {

// The typed words, separated by one "%"; no value if only spaces were typed.
std::optional<QString> prepareFindText(const QString &typed);

struct FindAnswer
{
    QString strFindText;
    QString strFieldName;
    bool bIsAppointField = false; // whether a single field was chosen
    bool unloads = false;         // whether the dialog is finished
};

FindAnswer pressFind(const QString &typed, const QString &fieldComboText);

} // namespace KOVAVSFDataGridLib
