#pragma once

#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "support/TestDatabase.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE

namespace KovaTest {

// A window made of plain values.
class PlainWindow : public KOVAVSFDataGridLib::SessionWindow
{
public:
    int Cols() const override { return static_cast<int>(headings.size()) + 1; }
    QStringList Headings() const override { return headings; }
    int ColWidth(int col) const override { return widths.contains(col) ? widths.at(col) : useDefaultWidth; }
    void PutColWidth(int col, int twips) override { widths[col] = twips; }
    void ResetColWidths() override { widths.clear(); }
    int width() const override { return 10000; }
    void showRecords(std::shared_ptr<ADODB::Recordset> recordset, qint64 first, int count) override;
    void showPageNumber(int page, qint64) override { shownPage = page; }
    int Row() const override { return currentRow; }
    int Rows() const override { return static_cast<int>(rows.size()) + 1; }
    void PutRow(int wanted) override { currentRow = wanted; }
    void PutCol(int wanted) override { currentColumn = wanted; }
    int currentCol() const override { return currentColumn; }
    std::vector<int> shownColumns() const override;
    bool isSingleRecordShown() const override { return isSingle; }
    void showSingleRecord() override { isSingle = true; }
    void showAllRecords() override { isSingle = false; }
    void setPressed(const QString &key, bool on) override { pressed[key] = on; }

    // The headings of the columns that are not hidden.
    QStringList shownFields() const;

    QStringList headings;
    QStringList rows; // each record's texts, separated by blanks
    std::map<int, int> widths;
    std::map<QString, bool> pressed;
    int currentRow = 0;
    int currentColumn = 0;
    int shownPage = 0;
    bool isSingle = false;
};

// Answers as prepared. What `meanwhile` does is done while the next question is open.
class PlainUser final : public KOVAVSFDataGridLib::Questions
{
public:
    std::optional<QString> ChooseVisibleFields(const QString &,
                                               const QList<KOVAVSFDataGridLib::OfferedField> &,
                                               const QStringList &) override;
    std::optional<QString> ChooseSort(const QString &, const QList<KOVAVSFDataGridLib::OfferedField> &,
                                      const QStringList &) override;
    void show(const QString &text) override { messages.append(text); }
    void showWithCause(const QString &text, const QString &) override { messages.append(text); }
    bool ask(const QString &, const QString &) override;
    QString askCondition(const KOVAVSFDataGridLib::ConditionRequest &) override;
    std::optional<KOVAVSFDataGridLib::ValuesAnswer>
    askValues(const KOVAVSFDataGridLib::ValuesRequest &) override;
    std::optional<KOVAVSFDataGridLib::FindAnswer>
    askWords(const KOVAVSFDataGridLib::colDataFields &) override;

    std::optional<QString> fields;
    std::optional<QString> sort;
    QString condition;
    QString built; // what the condition was built from; empty if it was written
    std::optional<KOVAVSFDataGridLib::ValuesAnswer> values;
    QString words;
    bool says = true;
    std::function<void()> meanwhile = [] {};
    QStringList messages;
};

// Records its notifications, with the number of rows shown at the time.
class PlainHost final : public KOVAVSFDataGridLib::HostEvents
{
public:
    void filterWritten() override
    {
        heard.append(QStringLiteral("filter"));
        std::exchange(onFilterWritten, [] {})();
    }
    void askFilter(qint32 &cancel, const QString &) override { cancel = cancelFilter; }
    void fieldsChanged(const QString &statement) override { changedFields = statement; }

    QStringList heard;
    std::function<void()> onFilterWritten = [] {}; // done once
    qint32 cancelFilter = 1;
    QString changedFields;
};

// A shop with three articles.
struct SessionFixture : testing::Test
{
    SessionFixture();
    ~SessionFixture() override { session->detach(); }

    bool load(const QString &statement = QStringLiteral("select * from T"), const QString &part = {});
    QString statement() const;

    TestDatabase database;
    ADODB::Adodc adodc;
    PlainWindow window;
    PlainUser user;
    PlainHost host;
    std::shared_ptr<KOVAVSFDataGridLib::Session> session = std::make_shared<KOVAVSFDataGridLib::Session>(
        window, user, host, KOVAVSFDataGridLib::controlRules, &adodc);
};

} // namespace KovaTest
