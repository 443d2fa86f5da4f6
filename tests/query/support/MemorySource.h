#pragma once

#include "query/fields/FieldChooser.h"
#include "query/fields/FieldReader.h"

#include <QtCore/QHash>

namespace KovaTest {

// A database of a few statements that can be unplugged.
class MemoryReader : public KOVAVSFDataGridLib::FieldReader
{
public:
    using Fields = std::vector<KOVAVSFDataGridLib::SourceField>;

    bool isPluggedIn = true;
    int reads = 0;
    KOVAVSFDataGridLib::EngineMode mode = {};
    QHash<QString, Fields> fieldsByStatement;

    bool Open(const QString &connectionString) override { return isPluggedIn && !connectionString.isEmpty(); }
    KOVAVSFDataGridLib::EngineMode engineOf(const QString &) override { return mode; }
    std::optional<Fields> Read(const QString &connectionString, const QString &statement) override
    {
        ++reads;
        if (!Open(connectionString) || !fieldsByStatement.contains(statement))
            return std::nullopt;
        return fieldsByStatement.value(statement);
    }
};

// A user whose choice is known beforehand; remembers what he was shown.
class MemoryChooser : public KOVAVSFDataGridLib::FieldChooser
{
public:
    using Fields = QList<KOVAVSFDataGridLib::OfferedField>;

    std::optional<QString> choice;
    QString title;
    QStringList allFields;
    QStringList written; // the same fields, as statements write them
    QStringList present;
    QStringList whyNotSorted;

    std::optional<QString> ChooseVisibleFields(const QString &shownTitle, const Fields &shownFields,
                                               const QStringList &partFields) override
    {
        return Choose(shownTitle, shownFields, partFields);
    }
    std::optional<QString> ChooseSort(const QString &shownTitle, const Fields &shownFields,
                                      const QStringList &sortTerms) override
    {
        return Choose(shownTitle, shownFields, sortTerms);
    }

private:
    std::optional<QString> Choose(const QString &shownTitle, const Fields &shownFields,
                                  const QStringList &shownChoice)
    {
        title = shownTitle;
        allFields.clear();
        written.clear();
        whyNotSorted.clear();
        for (const auto &field : shownFields) {
            allFields.append(field.name);
            written.append(field.written);
            whyNotSorted.append(field.whyNotSorted);
        }
        present = shownChoice;
        return choice;
    }
};

} // namespace KovaTest
