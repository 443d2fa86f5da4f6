// dialog_shots FOLDER [dark] [en] [grid]: shows each dialog with plausible contents, and with `grid` the
// control in use with its menus and windows as well, and saves them as PNG files in the folder, at the scale
// of QT_SCALE_FACTOR. Works without a display (QT_QPA_PLATFORM=offscreen).
#include "Photographer.h"
#include "Sample.h"

#include "control/connection/ConnectionBuilder.h"
#include "control/parts/FormatDialog.h"
#include "control/parts/toolbar/ToolbarIcons.h"
#include "filter/FilterTexts.h"
#include "filter/SetFilter.h"
#include "filter/conditions/FilterOperator.h"
#include "filter/frm_Filter.h"
#include "forms/ConnectDialog.h"
#include "forms/Dialog_SQLST.h"
#include "forms/ExportDialog.h"
#include "forms/FindDialog.h"
#include "forms/frmSelShowFields.h"
#include "forms/frmSelSortFields.h"
#include "language/Language.h"
#include "pages/ConnectionString.h"
#include "pages/PageDialog.h"
#include "pages/PropertyPage.h"
#include "pages/PropertyPages.h"
#include "print/PrintPreview.h"
#include "query/fields/colDataFields.h"
#include "support/DarkPalette.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtGui/QImage>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

QStringList fields()
{
    QStringList names{u"订单编号"_s, u"下单日期"_s,  u"客户编号"_s, u"客户名称"_s, u"产品编号"_s,
                      u"产品名称"_s, u"数量"_s,      u"单价(元)"_s, u"金额"_s,     u"已付款"_s,
                      u"发货时间"_s, u"送货 城市"_s, u"备注"_s};
    std::ranges::transform(names, names.begin(), sample);
    return names;
}

QString makeDatabase(const QString &folder)
{
    const QString path = folder + u"/shop.db"_s;
    sqlite3 *db = nullptr;
    sqlite3_open(path.toUtf8().constData(), &db);
    const char *const script =
        "CREATE TABLE 订单 (订单编号 INTEGER, 下单日期 DATE, 客户编号 INTEGER, 客户名称 VARCHAR(60),"
        " 产品编号 INTEGER, 产品名称 VARCHAR(60), 数量 INTEGER, [单价(元)] NUMERIC(10,2), 金额 NUMERIC(12,2),"
        " 已付款 BOOLEAN, 发货时间 TIMESTAMP, [送货 城市] VARCHAR(20), 备注 TEXT);"
        "ALTER TABLE 订单 ADD 照片 BLOB;"
        "WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 200),"
        " 城(C, 名, 品) AS (VALUES (0, '北京', '龙井茶 250克'), (1, '上海', '手工挂面'), (2, '广州', "
        "'青花瓷碗（六只）'),"
        " (3, '深圳', '铁观音 500克'), (4, '杭州', '宣纸 100张'), (5, NULL, '折扇')) "
        "INSERT INTO 订单 SELECT I, date('2024-01-01', I || ' days'), 100 + I, 名 || '同仁百货有限公司', 10 "
        "+ C, 品,"
        " 3 * I % 47 + 1, 12.5 + C, (3 * I % 47 + 1) * (12.5 + C), I % 3 > 0,"
        " datetime('2024-01-01 08:30', I || ' hours'), 名,"
        " CASE I WHEN 1 THEN '{\"客户\":\"长沙新宇百货公司\",\"明细\":[{\"产品\":\"龙井茶\",\"数量\":12}]}'"
        " WHEN 3 THEN '货到付款' END, CASE I WHEN 2 THEN randomblob(300) END FROM N, 城 WHERE C = I % 6 "
        "ORDER BY I";
    sqlite3_exec(db, sample(QString::fromUtf8(script)).toUtf8().constData(), nullptr, nullptr, nullptr);
    QImage picture(160, 120, QImage::Format_RGB32);
    picture.fill(QColor(60, 130, 190));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    const QString update = sample(u"UPDATE 订单 SET 照片 = x'%1' WHERE 订单编号 = 3"_s);
    sqlite3_exec(db, update.arg(QString::fromLatin1(bytes.toHex())).toUtf8().constData(), nullptr, nullptr,
                 nullptr);
    sqlite3_close(db);
    return u"Provider=SQLite;Data Source="_s + path;
}

void takeSelections(Photographer &photographer)
{
    const QStringList shown{sample(u"订单编号"_s), sample(u"下单日期"_s), sample(u"客户名称"_s),
                            sample(u"[单价(元)]"_s), sample(u"金额"_s)};
    frmSelShowFields show;
    show.SetPicture(toolbarIcon(u"SelField"_s));
    show.SetTitle(sample(u"订单"_s));
    const QStringList names = fields();
    show.AppendListFields(&names);
    show.SetListFieldCheck(&shown);
    photographer.take(show, u"frmSelShowFields"_s);

    const QStringList terms{sample(u"下单日期 DESC"_s), sample(u"客户名称"_s), sample(u"金额 DESC"_s)};
    frmSelSortFields sort;
    sort.SetPicture(toolbarIcon(u"Sort"_s));
    sort.SetTitle(sample(u"订单"_s));
    sort.AppendListFields(&names);
    sort.AppendListSortFields(&terms);
    sort.AppendSortOrder();
    auto &list = part<QTreeWidget>(sort, u"lvSortFields"_s);
    list.setCurrentItem(list.topLevelItem(1));
    photographer.take(sort, u"frmSelSortFields"_s);
}

void takeFind(Photographer &photographer)
{
    colDataFields columns;
    columns.AddFieldsByCol(fields());
    FindDialog find;
    find.InitFrm(&columns);
    photographer.take(find, u"FindDialog"_s);
    part<QComboBox>(find, u"InputCombo1"_s).setEditText(sample(u"北京 龙井茶"_s));
    photographer.take(find, u"FindDialog-typed"_s);
}

void takeExport(Photographer &photographer)
{
    ExportDialog exporting({sample(u"订单"_s), 120000, 25, 6, 11});
    part<QLineEdit>(exporting, u"txtFile"_s)
        .setText(sample(u"/home/user/文档/订单.csv"_s)); // not the one of who runs this
    photographer.take(exporting, u"ExportDialog"_s);
}

// A made-up table in place of a result.
void takePrint(Photographer &photographer)
{
    const QStringList rows{sample(u"1|2024-01-05|杭州茶叶有限公司|龙井茶|12|1536"_s),
                           sample(u"2|2024-02-29|昆明食品行|普洱茶|4|944"_s)};
    PrintPreview::Choices choices;
    choices.title = sample(u"订单"_s);
    choices.records = 60;
    choices.markedRecords = 1;
    int field = 0;
    for (const auto &[heading, type] :
         {std::pair{sample(u"订单编号"_s), ADODB::adInteger},
          std::pair{sample(u"下单日期"_s), ADODB::adDBDate},
          std::pair{sample(u"客户名称"_s), ADODB::adVarWChar},
          std::pair{sample(u"产品名称"_s), ADODB::adVarWChar}, std::pair{sample(u"数量"_s), ADODB::adInteger},
          std::pair{sample(u"金额"_s), ADODB::adDouble}})
        choices.columns.push_back({field++, heading, type, 0, field == 3 ? 180 : 90});
    choices.write = [&](RecordWriter &writer, bool, const std::function<bool()> &) {
        writer.begin(choices.columns);
        for (qint64 record = 0; record < choices.records; ++record) {
            std::vector<ADODB::RawValue> cells;
            const QList<QByteArray> values = rows[record % rows.size()].toUtf8().split('|');
            for (const QByteArray &value : values)
                cells.push_back(ADODB::RawValue::fromText(value));
            writer.row(cells);
        }
        writer.end();
    };
    PrintPreview preview(choices);
    photographer.take(preview, u"PrintPreview"_s);
}

void takeTexts(Photographer &photographer)
{
    ConnectDialog connection([](QWidget *, const QString &) { return std::optional<QString>(); });
    connection.SetConnectionString(u"Provider=SQLite;Data Source=shop.db"_s);
    photographer.take(connection, u"ConnectDialog"_s);

    Dialog_SQLST statement;
    statement.SetLabel(u"SQLShow"_s);
    statement.SetText(sample(u"select 订单编号, 客户名称, 金额 from 订单 where 金额 > 100"_s));
    statement.SetEditing(true, true);
    photographer.take(statement, u"Dialog_SQLST"_s);
}

void takeBuilder(Photographer &photographer)
{
    ConnectionBuilder builder(
        {{u"MariaDB Unicode"_s, u"PostgreSQL Unicode"_s}, {sample(u"网上商店"_s)}, [](const QString &) {
             return u"FATAL: password authentication failed for user \"kova\""_s;
         }});
    builder.SetConnectionString(sample(u"Provider=SQLite;Data Source=/srv/数据/shop.db"_s));
    photographer.take(builder, u"ConnectionBuilder-file"_s);
    builder.SetConnectionString(
        u"Driver=PostgreSQL Unicode;Server=db.example.com;Port=5432;Database=shop;UID=kova;PWD=secret"_s);
    photographer.take(builder, u"ConnectionBuilder"_s);
    part<QAbstractButton>(builder, u"cmdTest"_s).click();
    photographer.take(builder, u"ConnectionBuilder-refused"_s);
}

void takePages(Photographer &photographer)
{
    QObject control;
    control.setProperty("DBType", 1);
    control.setProperty("ConnectionString", u"Provider=SQLite;Data Source=shop.db"_s);
    control.setProperty("SQLShow", sample(u"select 订单编号, 客户名称, [送货 城市], 金额 from 订单"_s));
    control.setProperty("RecordSource", sample(u"select 订单编号, 客户名称, [送货 城市], 金额 from 订单"_s));
    control.setProperty("SQLPartDisplay", sample(u"select [订单编号],[金额] from 订单"_s));
    for (const QString &name : propertyPageNames()) {
        PropertyPage *page = newPropertyPage(name);
        PageDialog dialog(page);
        page->SetSelectedControls({&control});
        if (auto *connection = qobject_cast<ConnectionString *>(page))
            connection->SetBuilder([](QWidget *, const QString &) { return std::optional<QString>(); });
        photographer.take(dialog, u"page-"_s + name);
    }
}

void fillRow(const QWidget &dialog, int number, const QString &field, const QString &op, const QString &value)
{
    const QString suffix = QString::number(number);
    part<QComboBox>(dialog, u"cmbField"_s + suffix).setCurrentText(field);
    part<QComboBox>(dialog, u"cmbOperator"_s + suffix).setCurrentText(op);
    part<QLineEdit>(dialog, u"txtValue"_s + suffix).setText(value);
}

void takeFormats(Photographer &photographer)
{
    FormatDialog number(sample(u"金额"_s), false, u"#,##0.00"_s, u"12345.6"_s, 2, nullptr);
    photographer.take(number, u"FormatDialog"_s);
    FormatDialog boolean(sample(u"已付款"_s), true, {}, u"True"_s, 0, nullptr);
    photographer.take(boolean, u"FormatDialog-boolean"_s);
}

void takeFilter(Photographer &photographer, const QString &connectionString)
{
    frm_Filter filter;
    filter.SetPicture(toolbarIcon(u"Filter"_s));
    SetFilter &builder = filter.SetFilter1();
    builder.Initialize(FilterTexts::TableCaption, dbAccess);
    builder.SetConnectionString(connectionString);
    builder.SetCurrentTable(sample(u"订单"_s));
    builder.SetTableName(sample(u"订单"_s));
    photographer.take(filter, u"frm_Filter-empty"_s);

    auto &add = part<QAbstractButton>(filter, u"cmdAddRow"_s);
    for (int further = 0; further < 3; ++further)
        add.click();
    fillRow(filter, 1, sample(u"下单日期"_s), captionOf(FilterOperator::Between), u"2024-01-01"_s);
    part<QLineEdit>(filter, u"txtValue1b"_s).setText(u"2024-03-31"_s);
    fillRow(filter, 2, sample(u"送货 城市"_s), captionOf(FilterOperator::InList), sample(u"北京, 上海"_s));
    part<QComboBox>(filter, u"cmbOpen2"_s).setCurrentIndex(1);
    part<QComboBox>(filter, u"cmbJoin2"_s).setCurrentIndex(1);
    fillRow(filter, 3, sample(u"备注"_s), captionOf(FilterOperator::Contains), u"100%"_s);
    part<QComboBox>(filter, u"cmbClose3"_s).setCurrentIndex(1);
    fillRow(filter, 4, sample(u"金额"_s), captionOf(FilterOperator::Greater), u"100"_s);
    photographer.take(filter, u"frm_Filter"_s);
    part<QAbstractButton>(filter, u"chkGroups"_s).click();
    photographer.take(filter, u"frm_Filter-groups"_s);
    part<QAbstractButton>(filter, u"chkGroups"_s).click();

    fillRow(filter, 4, sample(u"金额"_s), captionOf(FilterOperator::Greater), sample(u"一百"_s));
    builder.ConditionText();
    photographer.take(filter, u"frm_Filter-fault"_s);
    fillRow(filter, 4, sample(u"金额"_s), captionOf(FilterOperator::Greater), u"100"_s);
    auto &condition = part<QLineEdit>(filter, u"txtCondition"_s);
    condition.setText(sample(u"金额 > 100 AND 已付款 = 0"_s));
    Q_EMIT condition.textEdited(condition.text());
    photographer.take(filter, u"frm_Filter-by-hand"_s);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    if (argc < 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: dialog_shots FOLDER [dark] [en] [grid]\n", stderr);
        return 2;
    }
    const QStringList options = QApplication::arguments().mid(2);
    if (options.contains(u"dark"_s))
        QApplication::setPalette(KovaTest::darkPalette());
    // Beside the library's own: kovagrid's texts are written in Chinese, Qt's in English.
    const bool english = options.contains(u"en"_s) && Language::use(u"en"_s);
    QTranslator texts;
    if (english ? texts.load(u"kovagrid_en"_s, u":/KOVAVSFDataGridLib/translations"_s)
                : texts.load(u"qtbase_zh_CN"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts);
    QFont font = QApplication::font();
    font.setFamilies({u"Noto Sans CJK SC"_s, font.family()}); // as kovagrid chooses it
    QApplication::setFont(font);
    Photographer photographer(QString::fromLocal8Bit(argv[1]));
    takeSelections(photographer);
    takeFind(photographer);
    takeExport(photographer);
    takeFormats(photographer);
    takePrint(photographer);
    takeTexts(photographer);
    takeBuilder(photographer);
    takePages(photographer);
    const QTemporaryDir folder;
    const QString connectionString = makeDatabase(folder.path());
    takeFilter(photographer, connectionString);
    if (options.contains(u"grid"_s)) {
        takeGrid(photographer, connectionString);
        takeHost(photographer, QDir(folder.path()).filePath(u"shop.db"_s));
    }
    return photographer.isDone() ? 0 : 1;
}
