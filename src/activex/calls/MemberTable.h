#pragma once

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>

#include <memory>
#include <oaidl.h>
#include <vector>

namespace KOVAVSFDataGridLib::ActiveX {

// What a client can reach under one name: a property, or the methods of that name with their overloads, or
// both.
struct Member
{
    QString name;
    QMetaProperty property; // invalid when there is none
    std::vector<QMetaMethod> methods;
};

// The members of a class by number, and their numbers by name in any letter case. Only what the class itself
// declares counts, never what it inherits from Qt.
class MemberTable
{
public:
    // Numbered from 1 as they are declared. DISPID_VALUE is "Value", "Item" or "Fields", whichever
    // the class has.
    explicit MemberTable(const QMetaObject &type);
    // Numbered as a type library does; what it does not know is left out.
    MemberTable(const QMetaObject &type, ITypeInfo &numbers);

    // The table of an object that is in no type library; made once for each class.
    static const MemberTable &of(const QMetaObject &type);

    DISPID idOf(const QString &name) const; // DISPID_UNKNOWN when there is no such member
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
