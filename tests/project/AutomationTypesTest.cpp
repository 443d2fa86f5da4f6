// Everything that a host reaches by name carries only types that automation can carry, so that a server of
// another kind can be made from the meta-objects alone.
#include "ado/Adodc.h"
#include "ado/automation/ConnectionObject.h"
#include "ado/automation/FieldObject.h"
#include "ado/automation/FieldsObject.h"
#include "ado/automation/RecordsetObject.h"
#include "ado/automation/StreamObject.h"

#include <KOVAVSFDataGrid>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <gtest/gtest.h>

namespace {

using Types = QList<QByteArray>;

// What the control carries; enumerations travel as numbers.
const Types Plain{"void",  "bool",    "qint16", "short", "qint32",  "int",
                  "float", "QString", "QColor", "QFont", "QObject*"};
// ADO's objects also hand over a value of any type, or bytes.
const Types WithValues = Plain + Types{"QVariant", "QByteArray"};

bool isCarried(const QMetaType &type, QByteArray name, const Types &types)
{
    // Only events have reference arguments, for the handler's answer.
    if (name.endsWith('&'))
        name.chop(1);
    return types.contains(name) || type.flags().testFlag(QMetaType::IsEnumeration);
}

Types notCarried(const QMetaObject &face, const Types &types)
{
    Types found;
    for (int i = face.propertyOffset(); i < face.propertyCount(); ++i) {
        const QMetaProperty property = face.property(i);
        if (!isCarried(property.metaType(), property.typeName(), types))
            found << property.typeName() + QByteArray(" ") + property.name();
    }
    for (int i = face.methodOffset(); i < face.methodCount(); ++i) {
        const QMetaMethod method = face.method(i);
        bool isCarriedWhole = isCarried(method.returnMetaType(), method.typeName(), types);
        for (int argument = 0; argument < method.parameterCount(); ++argument) {
            const QByteArray name = method.parameterTypes().at(argument);
            isCarriedWhole = isCarriedWhole && isCarried(method.parameterMetaType(argument), name, types) &&
                             (!name.endsWith('&') || method.methodType() == QMetaMethod::Signal);
        }
        if (!isCarriedWhole)
            found << method.methodSignature();
    }
    return found;
}

// Something that automation can't carry, to see that the check finds it.
class Strange : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSize Size READ size)

public:
    QSize size() const { return {}; }
    Q_INVOKABLE void take(const QList<int> &) {}
    Q_INVOKABLE void change(qint32 &) {}
    Q_INVOKABLE void fine(qint32) {}
};

} // namespace

TEST(AutomationTypes, AreAllThatTheControlCarries)
{
    EXPECT_EQ(notCarried(KOVAVSFDataGrid::staticMetaObject, Plain), Types{});
}

TEST(AutomationTypes, AreAllThatTheDataObjectsCarry)
{
    for (const QMetaObject *face :
         {&ADODB::Adodc::staticMetaObject, &ADODB::ConnectionObject::staticMetaObject,
          &ADODB::FieldObject::staticMetaObject, &ADODB::FieldsObject::staticMetaObject,
          &ADODB::RecordsetObject::staticMetaObject, &ADODB::StreamObject::staticMetaObject})
        EXPECT_EQ(notCarried(*face, WithValues), Types{}) << face->className();
}

TEST(AutomationTypes, AreCheckedInPropertiesAndArguments)
{
    EXPECT_EQ(notCarried(Strange::staticMetaObject, Plain),
              (Types{"QSize Size", "take(QList<int>)", "change(qint32&)"}));
}

#include "AutomationTypesTest.moc"
