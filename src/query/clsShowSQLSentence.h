#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// Values of clsShowSQLSentence::IsShowAllFields.
enum ShownFields : qint32 { PartFieldsShown = 0, AllFieldsShown = 1 };

// One statement of the history, and the parts it was made from.
class clsShowSQLSentence
{
public:
    QString SQLFields; // start of the statement: SELECT list and FROM part
    QString SQLWhere;  // including the word WHERE
    QString SQLOrder;  // including the words ORDER BY
    QString SQLKey;    // the entry's key in the history
    ShownFields IsShowAllFields = PartFieldsShown;
    QString AllFields;       // statement that selects all fields of the source
    QString PartFields;      // statement that selects the part fields of the settings
    QString OrderFields;     // sort list of the settings
    QString CurrPartFields;  // the same with the part fields that the user chose later; takes precedence
    QString CurrOrderFields; // the same that the user chose later; takes precedence
    QString OrgSQL;          // the filter that the entry was created with
    QString ShowSQL;         // the statement that the grid runs
    QString NewSQL;          // a composed statement
    // The statement that was sorted last. A later choice of fields may lack terms of its sort.
    QString SortedSQL;

    void InitData() { *this = {}; }

    // Splits ShowSQL into the three parts. Returns false and changes nothing if it is empty. `Sel` is
    // ignored.
    bool SeperateSQL(qint32 Sel = 0);
    // Always returns false and changes nothing: only a text that isn't empty is completed with the parts, and
    // composing starts from an empty one. Kept for callers that rely on this result. `Sel` is ignored.
    bool CompoundSQL(qint32 Sel = 0);
    bool UpdateSQLCompoment(const QString &strTableFields, const QString &strWhere, const QString &strOrder);

    // The sort list that applies. Always returns true.
    bool GetCurrUseOrderFieldSQL(QString &strCurrOrder) const;
    // The part statement that applies. Returns false if there is none.
    bool GetCurrUsePartFieldSQL(QString &strCurrSQL) const;
};

} // namespace KOVAVSFDataGridLib
