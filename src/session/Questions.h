#pragma once

#include "ado/values/DisplayFormat.h"
#include "export/ExportFormat.h"
#include "export/WriteRecords.h"
#include "query/StatementSource.h"
#include "query/conditions/ConditionInForce.h"
#include "query/derivation/Derivation.h"
#include "query/fields/FieldChooser.h"

#include <functional>
#include <memory>

namespace ADODB {
class Connection;
}

namespace KOVAVSFDataGridLib {

class colDataFields;

// The input for building a condition.
struct ConditionRequest
{
    QString connectionString;
    AllDBType dbType = dbAccess;
    StatementSource tableType = FromTable;
    QString sqlShow;
    std::shared_ptr<ADODB::Connection> connection; // may be null
    // What to filter instead if the statement isn't the plain rows of a table.
    std::optional<FilteredResult> result = {};
    // The condition that the filtered records already meet; may be empty.
    QString condition = {};
    // Why the database rejected the previous condition; empty at first.
    QString refusal = {};
    // Kept by the callee until the next time, so that all input is still there.
    mutable std::shared_ptr<void> memory = {};
    // The initial field, by its heading (empty for any), and a value of it as text.
    QString field = {};
    QString value = {};
    // The table whose saved filters are offered; empty for none.
    QString table = {};
    // The conditions that the one asked for replaces; to begin with, all of them.
    std::vector<ConditionInForce> replaced = {};
    // Of a choice of values: what the one in force was made from, as whoever is asked wrote it.
    // Of a condition that is answered: the part that was newly built, and what it was built from. The rest of
    // it are those of `replaced` that the user keeps.
    mutable QString built = {};
    mutable QString builtCondition = {};
};

// The input for choosing records by the values of a column.
struct ValuesRequest
{
    // The records whose values are offered. `field` is the column's heading; `built` is what the active
    // choice was built from.
    ConditionRequest records;
    QString written; // the field's name for SQL
};

struct ValuesAnswer
{
    QString condition = {};    // empty for all records
    QString built = {};        // for the next time
    bool wantsBuilder = false; // the user wants to build any condition instead
};

// The words to search for.
struct FindAnswer
{
    QString text; // words separated by "%"; empty if the user cancelled
    bool isOneField = false;
    QString field; // if isOneField
};

// What to do with a record that can't be saved when its result is about to be closed.
enum class Unsaved { SaveAgain, Discard, Stay, ShowNewValues };
// The input for an export dialog.
struct ExportRequest
{
    QString name; // of the file, without folder and ending
    qint64 records = 0;
    qint64 markedRecords = 0;
    int shownColumns = 0;
    int allColumns = 0;
};

// What to export, and where to.
struct ExportAnswer
{
    QString file;
    ExportOptions options;
    bool isMarkedOnly = false;
    bool hasAllColumns = false; // including hidden ones
};

// The input for a print dialog.
struct PrintRequest
{
    QString title;
    QString file; // of a PDF file, without folder and ending
    RecordRange all;
    RecordRange marked;
    ExportColumns columns;
    std::vector<ADODB::DisplayFormat> formats; // one per column
    // Passes records to the writer until `shouldContinue` returns false. Throws ADODB::Error.
    std::function<void(RecordWriter &, bool isMarkedOnly, const std::function<bool()> &shouldContinue)> write;
};

// What to print, and with which writer.
struct PrintAnswer
{
    std::unique_ptr<RecordWriter> writer;
    bool isMarkedOnly = false;
};

// The input for choosing a column's display format.
struct FormatRequest
{
    QString column;
    bool isBoolean = false; // otherwise it contains numbers
    QString format;         // in the syntax of ADODB::DisplayFormat
    QString sample = {};    // one of its texts
    int decimals = 0;       // with which that is shown at least while nothing else is chosen
};

// What a session asks and tells its user. Each function returns when the user has finished. Meanwhile a host
// may do anything, even delete the caller. The default implementation cancels every question.
class Questions : public FieldChooser
{
public:
    std::optional<QString> ChooseVisibleFields(const QString &, const QList<OfferedField> &,
                                               const QStringList &) override
    {
        return {};
    }
    std::optional<QString> ChooseSort(const QString &, const QList<OfferedField> &,
                                      const QStringList &) override
    {
        return {};
    }
    virtual void show(const QString & /*text*/) {}
    virtual void showWithCause(const QString & /*text*/, const QString & /*cause*/) {}
    // The same for a record that somebody else has changed; true if the user wants to see the new values.
    // `cause` may be empty.
    virtual bool offerNewValues(const QString & /*text*/, const QString & /*cause*/) { return false; }
    // True for Yes. Enter presses No.
    virtual bool ask(const QString & /*text*/, const QString & /*title*/) { return false; }
    // `reason` tells why the record wasn't saved. ShowNewValues is a possible answer if somebody else has
    // changed the record.
    virtual Unsaved askUnsaved(const QString & /*reason*/, bool /*isChangedByOthers*/)
    {
        return Unsaved::Discard;
    }
    // An empty text if the user cancels.
    virtual QString askCondition(const ConditionRequest &) { return {}; }
    // The database accepted the condition.
    virtual void noteConditionUsed(const ConditionRequest &) {}
    // No value if the user cancels.
    virtual std::optional<ValuesAnswer> askValues(const ValuesRequest &) { return {}; }
    // No value if there are no fields to search.
    virtual std::optional<FindAnswer> askWords(const colDataFields &) { return {}; }
    // No value if the user cancels. An existing file may be replaced.
    virtual std::optional<ExportAnswer> askExport(const ExportRequest &) { return {}; }
    // No value if the user cancels. An existing file may be replaced.
    virtual std::optional<PrintAnswer> askPrint(const PrintRequest &) { return {}; }
    // The format that the user chooses; no value if the user cancels.
    virtual std::optional<QString> askFormat(const FormatRequest &) { return {}; }
};

} // namespace KOVAVSFDataGridLib
