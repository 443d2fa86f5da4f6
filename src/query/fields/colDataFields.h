#pragma once

#include "query/KeyedList.h"
#include "query/fields/clsDataField.h"

#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// The fields of a statement in statement order: a collection of clsDataField under keys, which answers for
// names as well. Names are compared letter for letter; where two fields share one, every search finds the
// first. Positions count from 1. Finding by name or key takes constant time.
class colDataFields
{
public:
    using const_iterator = KeyedList<clsDataField>::const_iterator;

    // Each adds a field. An empty *PassKey (or none) gets a new key, which it then holds; a given one is used
    // as it is. False when the key is taken.
    bool AddAllFieldMess(const QString &strFieldName, qint32 lngFieldOrder, qint32 lngFieldWidth,
                         qint32 lngIsPartField, qint32 lngFieldColour, qint32 lngFieldType,
                         QString *PassKey = nullptr);
    bool AddSimpleFieldMess(const QString &strFieldName, qint32 lngFieldWidth, qint32 lngIsPartField,
                            qint32 lngFieldType, QString *PassKey = nullptr);
    bool AddFieldNameMess(const QString &strFieldName, const QString &strWholeName = {},
                          QString *PassKey = nullptr);

    // Replaces all fields by the names that aren't empty; each is its own whole name. False when the list is
    // empty.
    bool AddFieldsByCol(const QStringList &FieldNameCol);

    // Gives each field whose name is the short name of a written one that whole name. False when the list is
    // empty.
    bool AppendFieldRealNameByCol(const QStringList &FieldNameCol);

    // Marks exactly the listed names as part fields. An empty list answers False and changes nothing.
    bool SetPartFieldStatusByCol(const QStringList &FieldNameCol);

    bool GetSelFieldKey(const QString &strFieldName, QString &strRetKey) const;
    // Empty when there is no such field.
    QString GetSelFieldRealName(const QString &strFieldName) const;
    bool IsSelFieldPartField(const QString &strFieldName) const;
    // How many fields are marked with exactly 1; always True.
    bool GetCurrShowFieldsCount(qint32 &PassCount) const;

    // Null when there is none. The pointer lasts until the catalogue changes.
    const clsDataField *Item(qsizetype position) const;
    const clsDataField *Item(const QString &key) const;
    const clsDataField *Find(const QString &strFieldName) const;

    // Lets `change` work on the field with that key, so that searches by name stay right when it renames the
    // field.
    template<typename Change>
    bool Update(const QString &key, Change change);

    qsizetype Count() const { return m_fields.Count(); }
    // Nothing happens when there is no such field. Keys aren't used again.
    void Remove(qsizetype position);
    void Remove(const QString &key) { Remove(m_fields.PositionOf(key)); }
    // Keys start again as well.
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
