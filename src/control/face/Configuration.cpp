#include "control/face/Configuration.h"

#include "control/face/platform/ModuleFolder.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTextStream>

#include <optional>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString Application = u"KOVAVSFDataGrid"_s;
const QString SelectWholeRowsKey = u"Settings/ResChkSelAllRow"_s;
const QString ThreeTierSection = u"Use3Tier"_s;
const QString MissingEntry = u"Return Err"_s;
constexpr qsizetype LongestValue = 254; // characters

bool isSameName(QStringView written, const QString &name)
{
    return written.trimmed().compare(name, Qt::CaseInsensitive) == 0;
}

QString withoutQuotes(const QString &value)
{
    const bool isQuoted = value.size() >= 2 && value.front() == value.back() &&
                          (value.front() == u'"' || value.front() == u'\'');
    return isQuoted ? value.mid(1, value.size() - 2) : value;
}

// Read line by line, because an INI file of this kind knows no escapes: a backslash in it is a backslash. As
// everywhere with such files the first entry of a name counts, ";" begins a comment only at a line's begin
// and quotes around a value aren't part of it.
std::optional<QString> readEntry(const QString &section, const QString &key, const QString &filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QTextStream lines(&file); // in UTF-8, or as its byte order mark says
    bool isInSection = false;
    QString line;
    while (lines.readLineInto(&line)) {
        line = line.trimmed();
        if (line.startsWith(u'[')) {
            isInSection = isSameName(QStringView(line).mid(1, line.indexOf(u']') - 1), section);
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (isInSection && equals > 0 && isSameName(QStringView(line).first(equals), key))
            return withoutQuotes(line.mid(equals + 1).trimmed());
    }
    return {};
}

QString threeTierFile()
{
    return QDir(moduleFolder()).filePath(u"MERIXUSER3TIER.cfg"_s);
}

} // namespace

QString ReadProfileValue(const QString &section, const QString &key, const QString &filePath)
{
    const std::optional<QString> value = readEntry(section, key, filePath);
    return value ? value->left(LongestValue).trimmed() : MissingEntry;
}

qint32 Read3TierSwitch()
{
    return ReadProfileValue(ThreeTierSection, u"MERIX"_s, threeTierFile()).toUpper() == u"YES" ? 1 : 0;
}

// Whole, because a connection string cut off leads elsewhere.
ADODB::MiddleTier readMiddleTier()
{
    const auto entry = [](const QString &key) {
        return readEntry(ThreeTierSection, key, threeTierFile()).value_or(QString()).trimmed();
    };
    return {entry(u"Server"_s), entry(u"Port"_s), entry(u"Connection"_s)};
}

bool readSelectWholeRows()
{
    return QSettings(Application, Application).value(SelectWholeRowsKey, u"1"_s).toString() == u"1";
}

void saveSelectWholeRows(bool on)
{
    QSettings(Application, Application).setValue(SelectWholeRowsKey, on ? u"1"_s : u"0"_s);
}

} // namespace KOVAVSFDataGridLib
