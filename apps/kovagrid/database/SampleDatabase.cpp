#include "database/SampleDatabase.h"

#include "HostTexts.h"
#include "database/SampleWords.h"

#include <QtCore/QBuffer>
#include <QtCore/QDate>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <sqlite3.h>

#include <filesystem>
#include <random>
#include <stdexcept>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

constexpr int version = 4; // raise it when the tables change, so that old files are created again
constexpr int customerCount = 240;
constexpr int orderCount = 120000;

QByteArray fileContent(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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
    Insert(Database &database, const QString &table, int columns) : m_database(database)
    {
        const QByteArray sql =
            "INSERT INTO " + table.toUtf8() + " VALUES (?" + QByteArray(",?").repeated(columns - 1) + ")";
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
        return items.at(below(static_cast<int>(items.size())));
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

std::vector<QString> fillCustomers(Database &database, Dice &dice, const SampleWords &words)
{
    std::vector<QString> names;
    Insert insert(database, words.customers, 7);
    for (int i = 0; i < customerCount; ++i) {
        const QString &city = words.cities.at(i % words.cities.size());
        const QString &company = words.companies.at(i / words.cities.size() % words.companies.size());
        const QString name = words.customerName.arg(city, company, dice.oneOf(words.trades));
        QString contact;
        if (dice.below(8) != 0) {
            const QString &givenName = dice.oneOf(words.givenNames);
            contact = words.contactName.arg(dice.oneOf(words.surnames), givenName);
        }
        const QString phone =
            u"1%1%2"_s.arg(30 + dice.below(60)).arg(dice.below(100000000), 8, 10, QLatin1Char('0'));
        insert.row(i + 1, name, contact, city, phone, 5000.0 * (1 + dice.below(40)),
                   dice.below(5) == 0 ? 1 : 0);
        names.push_back(name);
    }
    return names;
}

void fillProducts(Database &database, Dice &dice, const SampleWords &words)
{
    Insert insert(database, words.products, 7);
    int number = 0;
    for (const SampleWords::Product &product : words.assortment) {
        ++number;
        insert.row(number, product.name, product.category, product.cents / 100.0, dice.below(900),
                   dice.below(9) == 0 ? 1 : 0, pictureOf(number));
    }
}

void fillOrders(Database &database, Dice &dice, const SampleWords &words,
                const std::vector<QString> &customers)
{
    Insert insert(database, words.orders, 11);
    const QDate first(2021, 1, 4);
    for (int i = 0; i < orderCount; ++i) {
        const int customer = dice.below(customerCount);
        const SampleWords::Product &product = dice.oneOf(words.assortment);
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
                   dice.below(4) == 0 ? 0 : 1, shipped, dice.oneOf(words.cities),
                   dice.below(6) == 0 ? dice.oneOf(words.notes) : QString());
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

void create(const QString &fileName, const SampleWords &words)
{
    Database database(fileName);
    database.run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA foreign_keys = ON; BEGIN");
    database.run(fileContent(words.schema));
    Dice dice;
    const std::vector<QString> customers = fillCustomers(database, dice, words);
    fillProducts(database, dice, words);
    fillOrders(database, dice, words, customers);
    database.run("PRAGMA user_version = " + QByteArray::number(version));
    database.run("COMMIT");
}

// Created in a separate folder first, so that an interrupted start leaves no incomplete database, and two
// processes that start at once don't write to the same file.
void createInOneStep(const QString &fileName, const SampleWords &words)
{
    const QTemporaryDir ownFolder(fileName + u".XXXXXX"_s);
    if (!ownFolder.isValid())
        throw std::runtime_error(ownFolder.errorString().toStdString());
    const QString finished = ownFolder.filePath(u"sample.db"_s);
    create(finished, words);
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

SampleDatabase::Sample SampleDatabase::inLanguage(const QString &language)
{
    const SampleWords &words = SampleWords::inLanguage(language);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(folder))
        throw failure(HostTexts::CantMakeFolder().arg(folder));
    const QString fileName = folder + u'/' + words.fileName;
    try {
        if (!isCurrent(fileName))
            createInOneStep(fileName, words);
    } catch (const std::runtime_error &error) {
        throw failure(HostTexts::CantMakeSample().arg(fileName, QString::fromUtf8(error.what())));
    }
    return {fileName, words.statement, words.partStatement};
}
