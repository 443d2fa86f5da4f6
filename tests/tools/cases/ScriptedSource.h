#pragma once

#include "query/fields/FieldChooser.h"
#include "query/fields/FieldReader.h"

#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QSet>

namespace KovaTest {

// A database that only knows the statements it was told, in plain or no-row form.
class ScriptedReader : public KOVAVSFDataGridLib::FieldReader
{
public:
    // {"open": [connection strings], "names": [{"statement", "noRow", "fields": [names]}]}
    void Load(const QJsonObject &script);

    bool Open(const QString &connectionString) override;
    std::optional<std::vector<KOVAVSFDataGridLib::SourceField>> Read(const QString &connectionString,
                                                                     const QString &statement) override;

private:
    QSet<QString> m_open;
    QMap<QString, QStringList> m_fieldsByStatement;
};

// Fields that anybody can read, whatever connection and statement; nothing when they can't be read.
class FixedReader : public KOVAVSFDataGridLib::FieldReader
{
public:
    explicit FixedReader(std::optional<std::vector<KOVAVSFDataGridLib::SourceField>> fields)
        : m_fields(std::move(fields))
    {
    }

    bool Open(const QString &) override { return m_fields.has_value(); }
    std::optional<std::vector<KOVAVSFDataGridLib::SourceField>> Read(const QString &,
                                                                     const QString &) override
    {
        return m_fields;
    }

private:
    std::optional<std::vector<KOVAVSFDataGridLib::SourceField>> m_fields;
};

// A user who has made up his mind before the dialog opens.
class ScriptedChooser : public KOVAVSFDataGridLib::FieldChooser
{
public:
    std::optional<QString> choice; // nothing cancels

    std::optional<QString> ChooseVisibleFields(const QString &,
                                               const QList<KOVAVSFDataGridLib::OfferedField> &,
                                               const QStringList &) override
    {
        return choice;
    }
    std::optional<QString> ChooseSort(const QString &, const QList<KOVAVSFDataGridLib::OfferedField> &,
                                      const QStringList &) override
    {
        return choice;
    }
};

} // namespace KovaTest
