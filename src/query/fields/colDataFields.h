#pragma once

#include "query/KeyedList.h"
#include "query/fields/clsDataField.h"

#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// The fields of a statement in statement order: a keyed collection of clsDataField that can also be searched
// by name. Names are case-sensitive; of fields with the same name, a search finds the first. Positions start
// at 1. Finding by name or key takes constant time.
class colDataFields
{
public:
    using const_iterator = KeyedList<clsDataField>::const_iterator;

    // Each adds a field. If *PassKey is empty (or PassKey is null), a key is generated and stored there;
    // otherwise the given key is used. Returns false if the key exists already.
    bool AddAllFieldMess(const QString &strFieldName, qint32 lngFieldOrder, qint32 lngFieldWidth,
                         qint32 lngIsPartField, qint32 lngFieldColour, qint32 lngFieldType,
                         QString *PassKey = nullptr);
    bool AddSimpleFieldMess(const QString &strFieldName, qint32 lngFieldWidth, qint32 lngIsPartField,
                            qint32 lngFieldType, QString *PassKey = nullptr);
    bool AddFieldNameMess(const QString &strFieldName, const QString &strWholeName = {},
                          QString *PassKey = nullptr);

    // Replaces all fields with the names that aren't empty; each is also its whole name. Returns false if the
    // list is empty.
    bool AddFieldsByCol(const QStringList &FieldNameCol);

    // Sets the whole name of each field whose name is the short form of a listed name. Returns false if the
    // list is empty.
    bool AppendFieldRealNameByCol(const QStringList &FieldNameCol);

    // Marks exactly the listed names as part fields. If the list is empty, returns false and changes nothing.
    bool SetPartFieldStatusByCol(const QStringList &FieldNameCol);

    bool GetSelFieldKey(const QString &strFieldName, QString &strRetKey) const;
    // Empty if there is no such field.
    QString GetSelFieldRealName(const QString &strFieldName) const;
    bool IsSelFieldPartField(const QString &strFieldName) const;
    // How many fields are marked with exactly 1. Always returns true.
    bool GetCurrShowFieldsCount(qint32 &PassCount) const;

    // Null if there is none. The pointer is valid until the catalogue changes.
    const clsDataField *Item(qsizetype position) const;
    const clsDataField *Item(const QString &key) const;
    const clsDataField *Find(const QString &strFieldName) const;

    // Calls `change` on the field with that key, and keeps
    // searches by name correct if it renames the field.
    template<typename Change>
    bool Update(const QString &key, Change change);

    qsizetype Count() const { return m_fields.Count(); }
    // Does nothing if there is no such field. Keys aren't reused.
    void Remove(qsizetype position);
    void Remove(const QString &key) { Remove(m_fields.PositionOf(key)); }
    // Also restarts the keys.
    bool Clear();

    const_iterator begin() const { return m_fields.begin(); }
    const_iterator end() const { return m_fields.end(); }

private:
    bool Append(clsDataField field, QString *PassKey);
    clsDataField *Named(const QString &strFieldName);
    void IndexNames();

    KeyedList<clsDataField> m_fields{QStringLiteral("FieldDel")};
    QHash<QString, qsizetype> m_firstByName;
};

template<typename Change>
bool colDataFields::Update(const QString &key, Change change)
{
    clsDataField *const field = m_fields.Item(m_fields.PositionOf(key));
    if (!field)
        return false;
    const QString name = field->FieldName;
    change(*field);
    if (field->FieldName != name)
        IndexNames();
    return true;
}

} // namespace KOVAVSFDataGridLib
