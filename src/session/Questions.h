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

// What a user can be asked to build a condition from.
struct ConditionRequest
{
    QString connectionString;
    AllDBType dbType = dbAccess;
    StatementSource tableType = FromTable;
    QString sqlShow;
    std::shared_ptr<ADODB::Connection> connection; // may be null
    // Where the statement isn't the plain rows of a table: what it is filtered by instead.
    std::optional<FilteredResult> result = {};
    // The condition that the filtered records meet already; may be empty.
    QString condition = {};
    // Why the database refused the condition that was built last; empty at first.
    QString refusal = {};
    // What whoever is asked keeps until the next time, so that all is there again as it was typed.
    mutable std::shared_ptr<void> memory = {};
    // What to begin with: a field by its heading, empty for any, and a value of it as text.
    QString field = {};
    QString value = {};
    // Whose filters are kept for the user; empty for none.
    QString table = {};
    // The conditions that the one asked for replaces; to begin with, all of them.
    std::vector<ConditionInForce> replaced = {};
    // Of a choice of values: what the one in force was made from, as whoever is asked wrote it.
    // Of a condition that is answered: what was built anew in it, and what from. The rest of it are some of
    // `replaced`, which the user keeps.
    mutable QString built = {};
    mutable QString builtCondition = {};
};

// A column whose records the user chooses by their values.
struct ValuesRequest
{
    // The records whose values are offered; `field` is the column's heading, `built` what the choice in force
    // was built from.
    ConditionRequest records;
    QString written; // the field as statements write it
};

struct ValuesAnswer
{
    QString condition = {};    // empty for all records
    QString built = {};        // for the next time
    bool wantsBuilder = false; // to build a condition of any kind instead
};

// The words that the user looks for.
struct FindAnswer
{
    QString text; // words separated by "%"; empty when the user cancelled
    bool isOneField = false;
    QString field; // where isOneField
};

// What becomes of a record that can't be saved when its result is about to go.
enum class Unsaved { SaveAgain, Discard, Stay, ShowNewValues };
// What a user can export.
struct ExportRequest
{
    QString name; // of the file, without folder and ending
    qint64 records = 0;
    qint64 markedRecords = 0;
    int shownColumns = 0;
    int allColumns = 0;
};

// What is exported, and where to.
struct ExportAnswer
{
    QString file;
    ExportOptions options;
    bool isMarkedOnly = false;
    bool hasAllColumns = false; // hidden ones too
};

// What a user can print.
struct PrintRequest
{
    QString title;
    QString file; // of a PDF file, without folder and ending
    RecordRange all;
    RecordRange marked;
    ExportColumns columns;
    std::vector<ADODB::DisplayFormat> formats; // one for each column
    // Hands records to the writer until `shouldContinue` answers false. Throws ADODB::Error.
    std::function<void(RecordWriter &, bool isMarkedOnly, const std::function<bool()> &shouldContinue)> write;
};

// What is printed, and what prints it.
struct PrintAnswer
{
    std::unique_ptr<RecordWriter> writer;
    bool isMarkedOnly = false;
};

// How the texts of a column can be shown.
struct FormatRequest
{
    QString column;
    bool isBoolean = false; // else it holds numbers
    QString format;         // as ADODB::DisplayFormat writes it
    QString sample = {};    // one of its texts
    int decimals = 0;       // with which that is shown at least while nothing else is chosen
};

// What a session asks and reports to its user. Each function returns when the user is done; meanwhile a host
// may do anything, even delete what asked. This one is a user who is not there: every question is cancelled.
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
    // The same about a record that somebody else has changed; true when the user wants to see what it is now.
    // `cause` may be empty.
    virtual bool offerNewValues(const QString & /*text*/, const QString & /*cause*/) { return false; }
    // True for Yes. Enter presses No.
    virtual bool ask(const QString & /*text*/, const QString & /*title*/) { return false; }
    // `reason` says why the record wasn't saved. ShowNewValues is an answer where somebody else has changed
    // the record.
    virtual Unsaved askUnsaved(const QString & /*reason*/, bool /*isChangedByOthers*/)
    {
        return Unsaved::Discard;
    }
    // An empty text when the user cancels.
    virtual QString askCondition(const ConditionRequest &) { return {}; }
    // The database took the condition that was answered.
    virtual void noteConditionUsed(const ConditionRequest &) {}
    // Nothing when the user cancels.
    virtual std::optional<ValuesAnswer> askValues(const ValuesRequest &) { return {}; }
    // Nothing when there are no fields to look in.
    virtual std::optional<FindAnswer> askWords(const colDataFields &) { return {}; }
    // Nothing when the user cancels. A file that is there already may be replaced.
    virtual std::optional<ExportAnswer> askExport(const ExportRequest &) { return {}; }
    // Nothing when the user cancels. A file that is there already may be replaced.
    virtual std::optional<PrintAnswer> askPrint(const PrintRequest &) { return {}; }
    // The format that the user chooses; nothing when he cancels.
    virtual std::optional<QString> askFormat(const FormatRequest &) { return {}; }
};

} // namespace KOVAVSFDataGridLib
