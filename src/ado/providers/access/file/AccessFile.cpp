#include "ado/providers/access/file/AccessFile.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/DatabaseFile.h"
#include "ado/providers/access/file/AccessDefinition.h"
#include "ado/providers/access/file/AccessHeader.h"
#include "ado/providers/access/file/AccessNamedReader.h"

#include <QtCore/QFile>

#include <mdbtools.h>

#include <algorithm>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

constexpr quint32 objectsPage = 2; // the table of all objects, including itself
constexpr int jet3PageSize = 2048;
constexpr int jet4PageSize = 4096;
constexpr quint8 newestVersion = MDB_VER_ACCDB_2019;

struct Freer
{
    void operator()(MdbHandle *handle) const { mdb_close(handle); }
};

// libmdb reports a file of another kind as damaged, and reads pages that a truncated file doesn't have. So
// the file is checked first.
DatabaseFile checked(const QString &path, const QString &password)
{
    DatabaseFile file(path, AccessHeader::size);
    const AccessHeader header(file.header);
    if (!header.isAccess())
        throw Error(adErrOpeningFile, Texts::notAnAccessFile().arg(file.shown));
    if (header.version() > newestVersion)
        throw Error(adErrOpeningFile, Texts::accessTooNew().arg(file.shown));
    if (header.isEncrypted())
        throw Error(adErrOpeningFile, Texts::accessEncrypted().arg(file.shown));
    if (file.size % (header.version() == MDB_VER_JET3 ? jet3PageSize : jet4PageSize) != 0)
        throw Error(adErrOpeningFile, Texts::accessDamaged().arg(file.shown));
    if (header.password() != password && !header.password().isEmpty())
        throw Error(dbErrAuthFailed, Texts::accessPassword().arg(file.shown));
    return file;
}

// Decodes Jet 4's compressed text: one byte per Latin character. A zero byte switches between this form and
// UTF-16.
QString uncompressed(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    bool isCompressed = true;
    for (qsizetype i = 0; i < bytes.size();) {
        if (bytes[i] == 0) {
            isCompressed = !isCompressed;
            ++i;
        } else if (isCompressed) {
            text += QLatin1Char(bytes[i++]);
        } else {
            text += QChar(AccessBytes::number<quint16>(bytes, i));
            i += 2;
        }
    }
    return text;
}

} // namespace

struct AccessFile::Handle
{
    std::unique_ptr<MdbHandle, Freer> mdb;
    qint64 size = 0;
};

AccessFile::AccessFile(const QString &path, const QString &password) : m_handle(std::make_unique<Handle>())
{
    const DatabaseFile file = checked(path, password);
    m_language = AccessHeader(file.header).language();
    m_handle->size = file.size;
    m_handle->mdb.reset(mdb_open(QFile::encodeName(file.path).constData(), MDB_NOFLAGS));
    if (!m_handle->mdb)
        throw Error(adErrOpeningFile, Texts::accessDamaged().arg(file.shown));
    try {
        m_objects = readObjects();
    } catch (const Error &) {
        throw Error(adErrOpeningFile, Texts::accessDamaged().arg(file.shown));
    }
    for (const AccessObject &object : m_objects) {
        if (object.type != AccessObject::Table || object.isSystem)
            continue;
        if (auto table = readTable(object.name, object.definitionPage()))
            m_tables.push_back(std::move(*table));
    }
}

AccessFile::~AccessFile() = default;

bool AccessFile::isJet3() const
{
    return IS_JET3(m_handle->mdb);
}

std::vector<AccessObject> AccessFile::readObjects() const
{
    constexpr qint64 systemFlags = 0x80000002;
    const auto table = readTable(u"MSysObjects"_s, objectsPage);
    if (!table)
        AccessBytes::throwDamaged("the list of tables is missing");
    std::vector<AccessObject> objects;
    AccessNamedReader reader(*this, *table);
    while (reader.next()) {
        AccessObject object;
        object.id = reader.integer("Id"_L1);
        object.type = reader.integer("Type"_L1);
        object.isSystem = (reader.integer("Flags"_L1) & systemFlags) != 0;
        object.name = reader.text("Name"_L1);
        objects.push_back(std::move(object));
    }
    return objects;
}

std::optional<AccessTable> AccessFile::systemTable(QLatin1StringView name) const
{
    const auto object = std::find_if(m_objects.begin(), m_objects.end(), [&](const AccessObject &candidate) {
        return candidate.type == AccessObject::Table && candidate.name == name;
    });
    return object == m_objects.end() ? std::nullopt : readTable(object->name, object->definitionPage());
}

std::optional<AccessTable> AccessFile::readTable(const QString &name, quint32 definitionPage) const
{
    try {
        AccessTable table = AccessDefinition::read(*this, definitionPage);
        table.name = name;
        return table;
    } catch (const Error &) {
        return {};
    }
}

qint64 AccessFile::pages() const
{
    return m_handle->size / m_handle->mdb->fmt->pg_size;
}

std::shared_ptr<const AccessPage> AccessFile::page(quint32 number) const
{
    std::shared_ptr<const AccessPage> &cached = m_cache[number % cachedPages];
    if (cached && cached->number == number)
        return cached;
    MdbHandle *const mdb = m_handle->mdb.get();
    const auto size = mdb->fmt->pg_size;
    if (number == 0 || number >= pages() || mdb_read_pg(mdb, number) != size)
        AccessBytes::throwDamaged("a page is missing");
    auto page = std::make_shared<AccessPage>();
    page->number = number;
    page->size = static_cast<int>(size);
    page->rowCountOffset = mdb->fmt->row_count_offset;
    std::memcpy(page->buffer.data(), mdb->pg_buf, static_cast<std::size_t>(size));
    cached = std::move(page);
    return cached;
}

QByteArray AccessFile::longValue(QByteArrayView field) const
{
    constexpr quint32 sizeBits = 0x3fffffff;
    constexpr quint32 isInline = 0x80000000;
    constexpr quint32 isOnePiece = 0x40000000;
    constexpr qsizetype headSize = 12;
    const auto head = AccessBytes::number<quint32>(field, 0);
    const qsizetype size = head & sizeBits;
    if (size > m_handle->size)
        AccessBytes::throwDamaged("a long value is longer than the file");
    if (head & isInline)
        return AccessBytes::part(field, headSize, std::min(size, field.size() - headSize)).toByteArray();

    QByteArray value;
    auto next = AccessBytes::number<quint32>(field, 4);
    for (qint64 pieces = 0; value.size() < size; ++pieces) {
        if (pieces == pages())
            AccessBytes::throwDamaged("a long value goes round in a circle");
        const AccessAddress address(next);
        const auto holder = page(address.page);
        QByteArrayView piece = holder->row(address.row).bytes;
        if (!(head & isOnePiece)) {
            next = AccessBytes::number<quint32>(piece, 0);
            piece = piece.sliced(4);
        }
        if (piece.isEmpty())
            AccessBytes::throwDamaged("a long value is cut off");
        value += piece.first(std::min(piece.size(), size - value.size()));
        if (head & isOnePiece && value.size() < size)
            AccessBytes::throwDamaged("a long value is cut off");
    }
    return value;
}

QByteArray AccessFile::text(QByteArrayView bytes) const
{
    if (isJet3()) {
        constexpr std::size_t mostBytesPerLetter = 4;
        const auto size = static_cast<std::size_t>(bytes.size());
        QByteArray utf8(static_cast<qsizetype>(size * mostBytesPerLetter + 1), Qt::Uninitialized);
        const int written = mdb_unicode2ascii(m_handle->mdb.get(), bytes.data(), size, utf8.data(),
                                              static_cast<std::size_t>(utf8.size()));
        utf8.resize(written);
        return utf8;
    }
    if (bytes.startsWith("\xff\xfe"))
        return uncompressed(bytes.sliced(2)).toUtf8();
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(bytes.data(), text.size(), text.data());
    return text.toUtf8();
}

} // namespace ADODB
