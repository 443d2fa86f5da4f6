#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// clsShowSQLSentence::IsShowAllFields.
enum ShownFields : qint32 { PartFieldsShown = 0, AllFieldsShown = 1 };

// One statement of the history, and what it was made of.
class clsShowSQLSentence
{
public:
    QString SQLFields; // head of the statement: SELECT list and FROM part
    QString SQLWhere;  // with the word WHERE
    QString SQLOrder;  // with the words ORDER BY
    QString SQLKey;    // the entry's key in the history
    ShownFields IsShowAllFields = PartFieldsShown;
    QString AllFields;       // statement that selects all fields of the source
    QString PartFields;      // statement that selects the part fields chosen at set-up
    QString OrderFields;     // sort list chosen at set-up
    QString CurrPartFields;  // statement with the part fields that the user chose since; wins over PartFields
    QString CurrOrderFields; // sort list that the user chose since; wins over OrderFields
    QString OrgSQL;          // the filter that was given with the entry
    QString ShowSQL;         // the statement that the grid runs
    QString NewSQL;          // a composed statement

    void InitData() { *this = {}; }

    // Splits ShowSQL into the three parts. False, with nothing changed, when it is empty. `Sel` has no
    // meaning.
    bool SeperateSQL(qint32 Sel = 0);
    // Answers False and changes nothing: composing starts from an empty text, and only a text that isn't
    // empty is completed by the parts. Kept for callers that hold on to that answer. `Sel` has no meaning.
    bool CompoundSQL(qint32 Sel = 0);
    bool UpdateSQLCompoment(const QString &strTableFields, const QString &strWhere, const QString &strOrder);

    // The sort list in force; always True.
    bool GetCurrUseOrderFieldSQL(QString &strCurrOrder) const;
    // The part statement in force; False when there is none.
    bool GetCurrUsePartFieldSQL(QString &strCurrSQL) const;
};

} // namespace KOVAVSFDataGridLib
