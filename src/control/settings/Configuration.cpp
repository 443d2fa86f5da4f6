#include "control/settings/Configuration.h"

#include "control/settings/platform/ModuleFolder.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTextStream>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString applicationName = u"KOVAVSFDataGrid"_s;
const QString selectWholeRowsKey = u"Settings/ResChkSelAllRow"_s;
const QString threeTierSection = u"Use3Tier"_s;
const QString layoutGroup = u"Layouts/"_s;
const QString missingEntry = u"Return Err"_s;
constexpr qsizetype longestValue = 254; // characters

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

// Reads line by line, because this kind of INI file has no escapes: a backslash is a backslash. As usual for
// such files, the first entry of a name is used, ";" begins a comment only at the start of a line, and quotes
// around a value are not part of it.
class IniSection
{
public:
    IniSection(const QString &filePath, const QString &section);

    std::optional<QString> value(const QString &key) const
    {
        const auto found =
            std::ranges::find_if(m_entries, [&](const auto &entry) { return isSameName(entry.first, key); });
        return found == m_entries.end() ? std::nullopt : std::optional(found->second);
    }

private:
    std::vector<std::pair<QString, QString>> m_entries;
};

IniSection::IniSection(const QString &filePath, const QString &section)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QTextStream lines(&file); // UTF-8, unless its byte order mark says otherwise
    bool isInSection = false;
    QString line;
    while (lines.readLineInto(&line)) {
        line = line.trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'['))
            isInSection = isSameName(QStringView(line).mid(1, line.indexOf(u']') - 1), section);
        else if (isInSection && equals > 0)
            m_entries.emplace_back(line.first(equals), withoutQuotes(line.mid(equals + 1).trimmed()));
    }
}

QString profileValue(const IniSection &section, const QString &key)
{
    const std::optional<QString> value = section.value(key);
    return value ? value->left(longestValue).trimmed() : missingEntry;
}

QString threeTierFile()
{
    return QDir(moduleFolder()).filePath(u"MERIXUSER3TIER.cfg"_s);
}

} // namespace

QString readProfileValue(const QString &section, const QString &key, const QString &filePath)
{
    return profileValue(IniSection(filePath, section), key);
}

qint32 readThreeTierSwitch()
{
    return readThreeTierSettings().isOn ? 1 : 0;
}

// Without the length limit, because a truncated connection string would lead elsewhere.
ThreeTierSettings readThreeTierSettings()
{
    const IniSection section(threeTierFile(), threeTierSection);
    const auto entry = [&](const QString &key) { return section.value(key).value_or(QString()).trimmed(); };
    return {profileValue(section, u"MERIX"_s).toUpper() == u"YES",
            {entry(u"Server"_s), entry(u"Port"_s), entry(u"Connection"_s)}};
}

bool readSelectWholeRows()
{
    return QSettings(applicationName, applicationName).value(selectWholeRowsKey, u"1"_s).toString() == u"1";
}

void saveSelectWholeRows(bool on)
{
    QSettings(applicationName, applicationName).setValue(selectWholeRowsKey, on ? u"1"_s : u"0"_s);
}

QString readLayout(const QString &name)
{
    return QSettings(applicationName, applicationName).value(layoutGroup + name).toString();
}

void saveLayout(const QString &name, const QString &layout)
{
    QSettings(applicationName, applicationName).setValue(layoutGroup + name, layout);
}

} // namespace KOVAVSFDataGridLib
