#pragma once

#include "control/face/ControlWindow.h"
#include "control/parts/GridParts.h"
#include "control/viewer/frm_FullScreen.h"
#include "query/clsFilterManagement.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/WindowRules.h"
#include "support/ExpectedWarnings.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE

namespace KovaTest {

// Answers each question with a prepared answer, and records the questions.
class PreparedUser final : public KOVAVSFDataGridLib::Questions
{
public:
    std::optional<QString> answer; // for the choice of fields or of a sort
    QStringList fields;
    QStringList chosen;
    QString condition; // the result of the filter dialog
    QStringList messages;

    void show(const QString &text) override { messages.append(text); }
    void showWithCause(const QString &text, const QString &) override { messages.append(text); }
    bool ask(const QString &, const QString &) override { return true; }
    QString askCondition(const KOVAVSFDataGridLib::ConditionRequest &) override { return condition; }

    std::optional<QString> ChooseVisibleFields(const QString &,
                                               const QList<KOVAVSFDataGridLib::OfferedField> &allFields,
                                               const QStringList &partFields) override;
    std::optional<QString> ChooseSort(const QString &,
                                      const QList<KOVAVSFDataGridLib::OfferedField> &allFields,
                                      const QStringList &sortTerms) override;
};

struct SilentHost final : KOVAVSFDataGridLib::HostEvents
{
    int filtersWritten = 0;
    void filterWritten() override { ++filtersWritten; }
};

// The parts of a control with an open result, as a load leaves them.
struct LoadedParts : testing::Test
{
    LoadedParts();
    ~LoadedParts() override { session->detach(); }

    void load(const QString &statement, const QString &partStatement = {}, const QString &sort = {});
    // Leaves the field catalogue without any width.
    void forgetWidths();
    qint64 position() const;
    KOVAVSFDataGridLib::colShowSQLSentences &history() { return filter.SQLManager(); }
    QString latestStatement() const;

    // The off-screen platform warns about missing features for each popup menu.
    ExpectedWarning offscreen{QStringLiteral("This plugin does not support")};
    TestDatabase database;
    QWidget control;
    KOVAVSFDataGridLib::GridParts parts{control};
    PreparedUser chooser;
    SilentHost host;
    KOVAVSFDataGridLib::ControlWindow window{control, parts};
    std::shared_ptr<KOVAVSFDataGridLib::Session> session = std::make_shared<KOVAVSFDataGridLib::Session>(
        window, chooser, host, KOVAVSFDataGridLib::controlRules, parts.Adodc1);
    KOVAVSFDataGridLib::ResultSet &result = session->result();
    KOVAVSFDataGridLib::clsFilterManagement &filter = session->filterManager();
    QString statement;
    QString &condition = chooser.condition;
    QStringList refusals; // of conditions; then the user cancels
};

// What a user does in the viewer, with mouse and keys.
class ViewerUser
{
public:
    explicit ViewerUser(QWidget &viewer) : m_viewer(viewer) {}

    void press(const QString &key) const;
    // Types into the emptied page box and clicks the button beside it.
    void goTo(const QString &page) const;
    void rightClick(int row, int col) const;
    void choose(int menuIndex) const;

    KOVAVSFDataGridLib::GridToolbar &toolbar() const;
    KOVAVSFDataGridLib::VSFlexGrid &grid() const;
    QMenu &menu() const;
    QAction *menuItem(int index) const;
    QString label() const;
    QString box() const;
    // The shown column headings; then the texts of a row in them. Separated by blanks.
    QString row(int row) const;
    int rows() const; // that hold records

private:
    template<typename Part>
    Part &part(const char *name) const;

    QWidget &m_viewer;
};

// The viewer alone, without a control around it.
struct Viewer : LoadedParts
{
    void show(qint32 page = 1, bool isAll = true);
    // The table is gone, so that no statement can be opened any more.
    void breakDatabase() { database.run(QStringLiteral("ALTER TABLE T RENAME TO Away")); }

    int openings = 0;
    KOVAVSFDataGridLib::frm_FullScreen viewer{lend()};
    ViewerUser user{viewer};

private:
    KOVAVSFDataGridLib::ViewerHost lend();
};

// Five records, two on a page.
struct PagedViewer : Viewer
{
    PagedViewer();
};

} // namespace KovaTest
