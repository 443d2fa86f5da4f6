#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// One field of a statement in the catalogue.
struct clsDataField
{
    QString FieldName = {};      // short name, as shown: without table and brackets
    QString FieldWholeName = {}; // as used in statements, with table or brackets if needed
    qint32 FieldOrder = 0;       // position among the shown fields
    qint32 FieldWidth =
        0; // column width in twips; below 1 the width is unknown, except that -1 is the default width
    qint32 IsPartField = 0; // 1 if the field belongs to the chosen part
    qint32 FieldColour = 0; // colour value
    qint32 FieldType = 0;   // ADO type number; 0 if unknown
    QString FieldKey = {};  // the field's key in the catalogue
    qint32 IsHideField = 0; // not 0 if the field is hidden

    void InitFieldData()
    {
        FieldName.clear();
        FieldWholeName.clear();
        FieldKey.clear();
        IsHideField = 0;
    }
};

} // namespace KOVAVSFDataGridLib
