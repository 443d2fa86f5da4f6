#pragma once

#include "query/FieldChooser.h"

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
    qint32 dbType = 1; // AllDBType
    qint32 tableType = 0;
    QString sqlShow;
    std::shared_ptr<ADODB::Connection> connection; // may be null
};

// The words that the user looks for.
struct FindAnswer
{
    QString text; // words separated by "%"; empty when the user cancelled
    bool isOneField = false;
    QString field; // where isOneField
};

// What a session asks and tells its user. Each function returns when the user is done; meanwhile a host may
// do anything, even delete what asked.
class Questions : public FieldChooser
{
public:
    // What kind of database (AllDBType) the names that are offered belong to.
    virtual void setDatabase(qint32 dbType) = 0;
    virtual void tell(const QString &text) = 0;
    virtual void tellWithCause(const QString &text, const QString &cause) = 0;
    // True for Yes. Enter presses No.
    virtual bool ask(const QString &text, const QString &title) = 0;
    // An empty text when the user cancels.
    virtual QString askCondition(const ConditionRequest &request) = 0;
    // Nothing when there are no fields to look in.
    virtual std::optional<FindAnswer> askWords(const colDataFields &fields) = 0;
};

} // namespace KOVAVSFDataGridLib
