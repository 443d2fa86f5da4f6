// The control's face as its hosts see it: every name, type and order.
#include <KOVAVSFDataGrid>

#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QRegularExpression>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QMetaObject &face = KOVAVSFDataGrid::staticMetaObject;

struct PropertyFacts
{
    const char *name;
    const char *type;
    bool isWritable;
    bool isStored;
};

constexpr PropertyFacts properties[] = {
    {"STR_SQLTEMP", "QString", true, false},
    {"Enabled", "bool", true, false},
    {"BackColor", "QColor", true, true},
    {"DisplayEable", "bool", true, false},
    {"FilterEnable", "bool", true, false},
    {"SortEnable", "bool", true, false},
    {"DataBackColor", "QColor", true, false},
    {"DataFont", "QFont", true, false},
    {"UseModel", "KOVAVSFDataGrid::UseModelChoose", true, false},
    {"ShowModel", "KOVAVSFDataGrid::ShowModelChoose", true, false},
    {"ConnectionString", "QString", true, false},
    {"SQLShow", "QString", true, false},
    {"RecordSet", "QObject*", false, false},
    {"RecordSource", "QString", false, false},
    {"SQLPartDisplay", "QString", true, false},
    {"SQLFilter", "QString", true, false},
    {"SQLSort", "QString", true, false},
    {"TableType", "KOVAVSFDataGrid::TBLType", true, false},
    {"ErrorHint", "bool", true, false},
    {"DBType", "KOVAVSFDataGrid::AllDBType", true, false},
    {"SysDBCnn", "QString", true, false},
    {"SysDBMode", "QString", true, false},
    {"PassQurryFilter", "QString", true, false},
    {"CurrPosition", "int", false, false},
    {"PicField", "QString", true, false},
    {"UserMode", "bool", true, false},
    {"ReadOnly", "bool", true, false},
    {"LayoutKey", "QString", true, false},
    {"Language", "QString", true, false},
};

constexpr const char *methods[] = {
    "int GetBindFieldIndex(QString)",
    "void Refresh()",
    "bool LocateSelRecord(int)",
    "void ShowConnectionString()",
    "void ShowRecordSource()",
    "void ShowSQLShow()",
    "void ShowPartDisplay()",
    "void ShowFilterCondtion()",
    "void ShowSort()",
    "void GetConnection()",
    "void SetFieldName()",
    "void SetSQLShow()",
    "void SetSQLFilter()",
    "void SetSortFN()",
    "void SetGridCol(int)",
    "QString CellText(short,short)",
    "void Clear()",
    "void ClearAll()",
    "QObject* GetBond()",
    "short GetGridCol()",
    "void SetGridRow(int)",
    "short GetGridRow()",
    "void CloseAllAction()",
    "bool IsLoadData()",
    "void SeeCompressView()",
    "void ClearObject()",
    "QString CellTextL(int,int)",
    "int GetGridRowL()",
    "bool ExportData(QString,QString)",
    "QString SaveLayout()",
    "bool RestoreLayout(QString)",
    "bool PrintData(QString,QString)",
    "QString SaveFilters()",
    "bool RestoreFilters(QString)",
};

constexpr const char *events[] = {
    "DataMouseDown(qint16&,qint16&,float&,float&)",
    "DataMouseUp(qint16&,qint16&,float&,float&)",
    "DataMouseMove(qint16&,qint16&,float&,float&)",
    "Error(short,qint16&)",
    "HeadClick(short)",
    "DataClick()",
    "DataDblClick()",
    "DataKeyDown(qint16&,qint16&)",
    "MouseUp(qint16&,qint16&,float&,float&)",
    "ShowFieldsChange(QString)",
    "QurryFilter(qint32&,QString)",
    "RecordChanged(int,int)",
    "RecordsetChanged(int)",
    "DataDBLClickOneCell(int,int)",
    "DataDBLClickOneRow(int)",
    "PropertyChanged(QString)",
    "HostError(int,QString)",
};

std::string typesOf(const QMetaMethod &method)
{
    std::string text = method.returnMetaType().name();
    text += ' ';
    text += method.name().constData();
    text += '(';
    for (int i = 0; i < method.parameterCount(); ++i) {
        if (i > 0)
            text += ',';
        text += method.parameterMetaType(i).name();
    }
    text += ')';
    return text;
}

void expectEnumeration(const char *name, const std::vector<std::pair<std::string, int>> &members)
{
    const int index = face.indexOfEnumerator(name);
    ASSERT_GE(index, 0) << name;
    const QMetaEnum enumeration = face.enumerator(index);
    std::vector<std::pair<std::string, int>> found;
    for (int i = 0; i < enumeration.keyCount(); ++i)
        found.emplace_back(enumeration.key(i), enumeration.value(i));
    EXPECT_EQ(found, members) << name;
}

} // namespace

TEST(Interface, HasThePropertiesInTheirOrder)
{
    ASSERT_EQ(face.propertyCount() - face.propertyOffset(), static_cast<int>(std::size(properties)));
    for (std::size_t i = 0; i < std::size(properties); ++i) {
        const QMetaProperty property = face.property(face.propertyOffset() + static_cast<int>(i));
        EXPECT_STREQ(property.name(), properties[i].name);
        EXPECT_STREQ(property.metaType().name(), properties[i].type) << properties[i].name;
        EXPECT_EQ(property.isWritable(), properties[i].isWritable) << properties[i].name;
        EXPECT_EQ(property.isStored(), properties[i].isStored) << properties[i].name;
        EXPECT_TRUE(property.isReadable());
    }
}

TEST(Interface, HasTheMethodsInTheirOrder)
{
    std::vector<std::string> found;
    for (int i = face.methodOffset(); i < face.methodCount(); ++i) {
        if (face.method(i).methodType() != QMetaMethod::Signal)
            found.push_back(typesOf(face.method(i)));
    }
    EXPECT_EQ(found, std::vector<std::string>(std::begin(methods), std::end(methods)));
}

TEST(Interface, HasTheEventsInTheirOrder)
{
    std::vector<std::string> found;
    for (int i = face.methodOffset(); i < face.methodCount(); ++i) {
        if (face.method(i).methodType() == QMetaMethod::Signal)
            found.push_back(face.method(i).methodSignature().toStdString());
    }
    EXPECT_EQ(found, std::vector<std::string>(std::begin(events), std::end(events)));
}

TEST(Interface, HasTheEnumerationsWithTheirNumbers)
{
    expectEnumeration("UseModelChoose", {{"ModelUsing", 0}, {"ModelDefine", 1}});
    expectEnumeration("ShowModelChoose", {{"ModelAll", 0}, {"ModelPart", 1}});
    expectEnumeration("backstyleChoose", {{"Transparent", 0}, {"Opaque", 1}});
    expectEnumeration("AppearanceChoose", {{"Flat", 0}, {"Cascade", 1}});
    expectEnumeration("AllDBType", {{"dbAccess", 1}, {"dbOracle", 2}, {"dbSQLServer", 3}});
    expectEnumeration("TBLType", {{"DataTable", 0}, {"DataView", 1}, {"DefSQL", 2}});
}

TEST(Interface, IsReachedThroughTheAbstractClass)
{
    KOVAVSFDataGrid grid;
    IKOVAVSFDataGrid &face = grid;
    face.PutSQLSort(QStringLiteral("NAME DESC"));
    EXPECT_EQ(grid.SQLSort(), QStringLiteral("NAME DESC"));
}

TEST(Interface, IsInTheReferenceByThemes)
{
    QFile file(QStringLiteral(KOVA_SOURCE_DIR "/docs/reference.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    const QString themes = text.mid(text.indexOf(u"## Members by theme"_s));
    for (int i = face.propertyOffset(); i < face.propertyCount(); ++i) {
        const QString name = QString::fromLatin1(face.property(i).name());
        EXPECT_TRUE(themes.contains(QRegularExpression(u"::%1[,\\s]"_s.arg(name)))) << qPrintable(name);
    }
    for (int i = face.methodOffset(); i < face.methodCount(); ++i) {
        const QString name = QString::fromLatin1(face.method(i).name());
        EXPECT_TRUE(themes.contains(u"::%1()"_s.arg(name))) << qPrintable(name);
    }
}
