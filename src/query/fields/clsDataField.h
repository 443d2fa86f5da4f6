#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// One field of a statement, as the catalogue knows it.
struct clsDataField
{
    QString FieldName = {};      // short name, as shown: no table in front, no brackets
    QString FieldWholeName = {}; // as it is written in statements, with table or brackets where needed
    qint32 FieldOrder = 0;       // place among the shown fields
    qint32 FieldWidth =
        0; // column width in twips; below 1 no width is known, except that -1 is the default width
    qint32 IsPartField = 0; // 1 when the field belongs to the chosen part
    qint32 FieldColour = 0; // colour value
    qint32 FieldType = 0;   // ADO type number; 0 when nobody knows it
    QString FieldKey = {};  // the field's key in the catalogue
    qint32 IsHideField = 0; // not 0 when the field is hidden

    void InitFieldData()
    {
        FieldName.clear();
        FieldWholeName.clear();
        FieldKey.clear();
        IsHideField = 0;
    }
};

} // namespace KOVAVSFDataGridLib
