#include "database/SampleDatabase.h"

#include "HostTexts.h"

#include <QtCore/QBuffer>
#include <QtCore/QDate>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <sqlite3.h>

#include <array>
#include <filesystem>
#include <random>
#include <stdexcept>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

constexpr int version = 4; // raise it when the tables change, so that old files are created again
constexpr int customerCount = 240;
constexpr int orderCount = 120000;

QByteArray schema()
{
    QFile file(u":/sample.sql"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Product
{
    QString name;
    QString category;
    int cents;
};

const std::array cities{u"北京"_s, u"上海"_s, u"广州"_s, u"深圳"_s, u"杭州"_s, u"南京"_s,
                        u"成都"_s, u"武汉"_s, u"西安"_s, u"青岛"_s, u"厦门"_s, u"长沙"_s,
                        u"天津"_s, u"苏州"_s, u"昆明"_s, u"大连"_s};
const std::array companies{u"恒昌"_s, u"万通"_s, u"金桥"_s, u"华信"_s, u"明达"_s,
                           u"宏远"_s, u"瑞丰"_s, u"天成"_s, u"永利"_s, u"新宇"_s,
                           u"东方"_s, u"海纳"_s, u"佳和"_s, u"同仁"_s, u"博雅"_s};
const std::array trades{u"贸易有限公司"_s, u"百货公司"_s, u"食品商行"_s, u"超市"_s};
const std::array surnames{u"王"_s, u"李"_s, u"张"_s, u"刘"_s, u"陈"_s,
                          u"杨"_s, u"赵"_s, u"黄"_s, u"周"_s, u"吴"_s};
const std::array givenNames{u"伟"_s,   u"芳"_s, u"秀英"_s, u"敏"_s,  u"静"_s,
                            u"建国"_s, u"丽"_s, u"强"_s,   u"晓明"_s};
const std::array notes{u"请在上午送货"_s,   u"需开增值税发票"_s, u"老客户，包装加固"_s,
                       u"到货前电话联系"_s, u"货到付款"_s,       u"与上一单合并发货"_s};
const std::array products{
    Product{u"龙井茶 250克"_s, u"茶叶"_s, 12800},
    Product{u"铁观音 500克"_s, u"茶叶"_s, 16800},
    Product{u"普洱茶饼"_s, u"茶叶"_s, 23600},
    Product{u"茉莉花茶"_s, u"茶叶"_s, 4950},
    Product{u"东北大米 10千克"_s, u"粮油"_s, 7990},
    Product{u"花生油 5升"_s, u"粮油"_s, 11890},
    Product{u"手工挂面"_s, u"粮油"_s, 1250},
    Product{u"黑木耳"_s, u"干货"_s, 3880},
    Product{u"香菇"_s, u"干货"_s, 4520},
    Product{u"红枣 1千克"_s, u"干货"_s, 3600},
    Product{u"核桃仁"_s, u"干货"_s, 6800},
    Product{u"陈醋"_s, u"调味"_s, 1580},
    Product{u"豆瓣酱"_s, u"调味"_s, 1360},
    Product{u"生抽酱油"_s, u"调味"_s, 990},
    Product{u"青花瓷碗（六只）"_s, u"瓷器"_s, 19800},
    Product{u"紫砂壶"_s, u"瓷器"_s, 58000},
    Product{u"白瓷茶具"_s, u"瓷器"_s, 32600},
    Product{u"真丝围巾"_s, u"丝绸"_s, 26900},
    Product{u"丝绸被面"_s, u"丝绸"_s, 45900},
    Product{u"折扇"_s, u"工艺"_s, 8800},
    Product{u"剪纸画框"_s, u"工艺"_s, 5600},
    Product{u"毛笔套装"_s, u"文具"_s, 7200},
    Product{u"宣纸 100张"_s, u"文具"_s, 9600},
    Product{u"端砚"_s, u"文具"_s, 88000},
};

class Database
{
public:
    explicit Database(const QString &fileName)
    {
        const int code = sqlite3_open_v2(fileName.toUtf8().constData(), &m_handle,
                                         SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        if (code != SQLITE_OK)
            fail();
    }
    ~Database() { sqlite3_close(m_handle); }
    Q_DISABLE_COPY_MOVE(Database)

    sqlite3 *handle() const { return m_handle; }
    void run(const QByteArray &sql)
    {
        if (sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            fail();
    }
    [[noreturn]] void fail() const { throw std::runtime_error(sqlite3_errmsg(m_handle)); }

private:
    sqlite3 *m_handle = nullptr;
};

// An INSERT statement, run once per row.
class Insert
{
public:
    Insert(Database &database, const QByteArray &sql) : m_database(database)
    {
        if (sqlite3_prepare_v2(database.handle(), sql.constData(), -1, &m_statement, nullptr) != SQLITE_OK)
            database.fail();
    }
    ~Insert() { sqlite3_finalize(m_statement); }
    Q_DISABLE_COPY_MOVE(Insert)

    template<typename... Values>
    void row(const Values &...values)
    {
        Q_ASSERT(sqlite3_bind_parameter_count(m_statement) == sizeof...(values));
        int index = 0;
        (bind(++index, values), ...);
        if (sqlite3_step(m_statement) != SQLITE_DONE)
            m_database.fail();
        sqlite3_reset(m_statement);
    }

private:
    void bind(int index, int value) { sqlite3_bind_int(m_statement, index, value); }
    void bind(int index, double value) { sqlite3_bind_double(m_statement, index, value); }
    void bind(int index, const QString &value)
    {
        if (value.isNull()) {
            sqlite3_bind_null(m_statement, index);
            return;
        }
        const QByteArray text = value.toUtf8();
        sqlite3_bind_text(m_statement, index, text.constData(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT);
    }
    void bind(int index, const QByteArray &value)
    {
        sqlite3_bind_blob(m_statement, index, value.constData(), static_cast<int>(value.size()),
                          SQLITE_TRANSIENT);
    }

    Database &m_database;
    sqlite3_stmt *m_statement = nullptr;
};

// The same numbers on every machine, whatever its standard library.
class Dice
{
public:
    int below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned>(bound)); }
    template<typename Container>
    const auto &oneOf(const Container &items)
    {
        return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
    }

private:
    std::mt19937 m_engine{20240229};
};

QByteArray pictureOf(int number)
{
    QImage image(64, 48, QImage::Format_RGB32);
    const QColor ground = QColor::fromHsv(number * 47 % 360, 60, 245);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromHsv(number * 47 % 360, 170, 190));
    painter.drawRoundedRect(QRectF(14, 12, 36, 26), 4 + number % 12, 4 + number % 12);
    painter.setBrush(ground.lighter(110));
    painter.drawEllipse(QPointF(32, 25), 4 + number % 6, 4 + number % 6);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    return bytes;
}

std::vector<QString> fillCustomers(Database &database, Dice &dice)
{
    std::vector<QString> names;
    Insert insert(database, "INSERT INTO 客户 VALUES (?,?,?,?,?,?,?)");
    for (int i = 0; i < customerCount; ++i) {
        const auto at = [i](const auto &items, int step) {
            return items[static_cast<std::size_t>(i / step) % items.size()];
        };
        const QString city = at(cities, 1);
        const QString name = city + at(companies, static_cast<int>(cities.size())) + dice.oneOf(trades);
        const QString contact =
            dice.below(8) == 0 ? QString() : dice.oneOf(surnames) + dice.oneOf(givenNames);
        const QString phone =
            u"1%1%2"_s.arg(30 + dice.below(60)).arg(dice.below(100000000), 8, 10, QLatin1Char('0'));
        insert.row(i + 1, name, contact, city, phone, 5000.0 * (1 + dice.below(40)),
                   dice.below(5) == 0 ? 1 : 0);
        names.push_back(name);
    }
    return names;
}

void fillProducts(Database &database, Dice &dice)
{
    Insert insert(database, "INSERT INTO 产品 VALUES (?,?,?,?,?,?,?)");
    int number = 0;
    for (const Product &product : products) {
        ++number;
        insert.row(number, product.name, product.category, product.cents / 100.0, dice.below(900),
                   dice.below(9) == 0 ? 1 : 0, pictureOf(number));
    }
}

void fillOrders(Database &database, Dice &dice, const std::vector<QString> &customers)
{
    Insert insert(database, "INSERT INTO 订单 VALUES (?,?,?,?,?,?,?,?,?,?,?)");
    const QDate first(2021, 1, 4);
    for (int i = 0; i < orderCount; ++i) {
        const int customer = dice.below(customerCount);
        const int number = dice.below(static_cast<int>(products.size()));
        const Product &product = products[static_cast<std::size_t>(number)];
        const int quantity = 1 + dice.below(60);
        const QDate day = first.addDays(static_cast<qint64>(i) * 1800 / orderCount);
        const bool isShipped = dice.below(12) != 0;
        const QString shipped = isShipped
                                    ? day.addDays(1 + dice.below(5)).toString(Qt::ISODate) +
                                          u" %1:%2:00"_s.arg(8 + dice.below(10), 2, 10, QLatin1Char('0'))
                                              .arg(dice.below(60), 2, 10, QLatin1Char('0'))
                                    : QString();
        insert.row(i + 1, day.toString(Qt::ISODate), customers[static_cast<std::size_t>(customer)],
                   product.name, quantity, product.cents / 100.0, quantity * product.cents / 100.0,
                   dice.below(4) == 0 ? 0 : 1, shipped, dice.oneOf(cities),
                   dice.below(6) == 0 ? dice.oneOf(notes) : QString());
    }
}

bool isCurrent(const QString &fileName)
{
    if (!QFile::exists(fileName))
        return false;
    Database database(fileName);
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(database.handle(), "PRAGMA user_version", -1, &statement, nullptr);
    const bool isCurrent =
        sqlite3_step(statement) == SQLITE_ROW && sqlite3_column_int(statement, 0) == version;
    sqlite3_finalize(statement);
    return isCurrent;
}

void create(const QString &fileName)
{
    Database database(fileName);
    database.run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA foreign_keys = ON; BEGIN");
    database.run(schema());
    Dice dice;
    const std::vector<QString> customers = fillCustomers(database, dice);
    fillProducts(database, dice);
    fillOrders(database, dice, customers);
    database.run("PRAGMA user_version = " + QByteArray::number(version));
    database.run("COMMIT");
}

// Created in a separate folder first, so that an interrupted start leaves no incomplete database, and two
// processes that start at once don't write to the same file.
void createInOneStep(const QString &fileName)
{
    const QTemporaryDir ownFolder(fileName + u".XXXXXX"_s);
    if (!ownFolder.isValid())
        throw std::runtime_error(ownFolder.errorString().toStdString());
    const QString finished = ownFolder.filePath(u"sample.db"_s);
    create(finished);
    if (isCurrent(fileName)) // another process was faster
        return;
    // Replaces an older file; QFile would have to remove it first.
    std::error_code error;
    std::filesystem::rename(finished.toStdU16String(), fileName.toStdU16String(), error);
    if (error && !isCurrent(fileName))
        throw std::runtime_error(error.message());
}

std::runtime_error failure(const QString &text)
{
    return std::runtime_error(text.toStdString());
}

} // namespace

QString SampleDatabase::path()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(folder))
        throw failure(HostTexts::CantMakeFolder().arg(folder));
    QString fileName = folder + u"/sample.db"_s;
    try {
        if (!isCurrent(fileName))
            createInOneStep(fileName);
    } catch (const std::runtime_error &error) {
        throw failure(HostTexts::CantMakeSample().arg(fileName, QString::fromUtf8(error.what())));
    }
    return fileName;
}

QString SampleDatabase::defaultStatement()
{
    return u"select * from 订单"_s;
}

QString SampleDatabase::defaultPartStatement()
{
    return u"select 订单编号,下单日期,客户名称,产品名称,数量,金额 from 订单"_s;
}
