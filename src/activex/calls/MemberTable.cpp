#include "activex/calls/MemberTable.h"

#include <algorithm>
#include <unordered_map>

namespace KOVAVSFDataGridLib::ActiveX {

using namespace Qt::StringLiterals;

namespace {

std::vector<Member> membersOf(const QMetaObject &type)
{
    std::vector<Member> members;
    const auto named = [&members](const char *name) -> Member & {
        const QString text = QString::fromLatin1(name);
        const auto found = std::ranges::find(members, text, &Member::name);
        return found != members.end() ? *found : members.emplace_back(Member{text, {}, {}});
    };
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        named(type.property(i).name()).property = type.property(i);
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.methodType() == QMetaMethod::Method && method.access() == QMetaMethod::Public)
            named(method.name().constData()).methods.push_back(method);
    }
    return members;
}

} // namespace

MemberTable::MemberTable(const QMetaObject &type)
{
    DISPID next = 1;
    for (Member &member : membersOf(type))
        m_members.push_back({next++, std::move(member)});
    for (const QString &name : {u"Value"_s, u"Item"_s, u"Fields"_s}) {
        if (const Member *standard = member(idOf(name))) {
            m_members.push_back({DISPID_VALUE, *standard});
            break;
        }
    }
}

MemberTable::MemberTable(const QMetaObject &type, ITypeInfo &numbers)
{
    for (Member &member : membersOf(type)) {
        auto *name = const_cast<LPOLESTR>(reinterpret_cast<const OLECHAR *>(member.name.utf16()));
        MEMBERID id = MEMBERID_NIL;
        if (SUCCEEDED(numbers.GetIDsOfNames(&name, 1, &id)))
            m_members.push_back({id, std::move(member)});
    }
}

const MemberTable &MemberTable::of(const QMetaObject &type)
{
    static std::unordered_map<const QMetaObject *, std::unique_ptr<const MemberTable>> tables;
    auto &table = tables[&type];
    if (!table)
        table = std::make_unique<const MemberTable>(type);
    return *table;
}

DISPID MemberTable::idOf(const QString &name) const
{
    const auto found = std::ranges::find_if(m_members, [&name](const Numbered &numbered) {
        return numbered.member.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found != m_members.end() ? found->id : DISPID_UNKNOWN;
}

const Member *MemberTable::member(DISPID id) const
{
    const auto found = std::ranges::find(m_members, id, &Numbered::id);
    return found != m_members.end() ? &found->member : nullptr;
}

} // namespace KOVAVSFDataGridLib::ActiveX
