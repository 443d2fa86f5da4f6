#pragma once

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>

#include <memory>
#include <oaidl.h>
#include <vector>

namespace KOVAVSFDataGridLib::ActiveX {

// What a client can access by one name: a property, or the methods of that name with their overloads, or
// both.
struct Member
{
    QString name;
    QMetaProperty property; // invalid if there is none
    std::vector<QMetaMethod> methods;
};

// The members of a class by number, and their numbers by name (case-insensitive). Contains only what the
// class itself declares, not what it inherits from Qt.
class MemberTable
{
public:
    // Numbered from 1 in the order of declaration. DISPID_VALUE is "Value", "Item" or "Fields", whichever the
    // class has.
    explicit MemberTable(const QMetaObject &type);
    // Numbered as in a type library; members that are not in it are omitted.
    MemberTable(const QMetaObject &type, ITypeInfo &numbers);

    // The table for objects that are in no type library; created once per class.
    static const MemberTable &of(const QMetaObject &type);

    DISPID idOf(const QString &name) const; // DISPID_UNKNOWN if there is no such member
    const Member *member(DISPID id) const;

private:
    struct Numbered
    {
        DISPID id;
        Member member;
    };
    std::vector<Numbered> m_members;
};

} // namespace KOVAVSFDataGridLib::ActiveX
