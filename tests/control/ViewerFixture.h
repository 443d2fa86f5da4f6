#pragma once

#include "control/parts/GridParts.h"
#include "control/parts/PageView.h"
#include "control/viewer/frm_FullScreen.h"
#include "query/FieldChooser.h"
#include "query/clsFilterManagement.h"
#include "session/ColumnLayout.h"
#include "session/ConnectionFieldReader.h"
#include "session/ResultSet.h"
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

// Answers each question with what was prepared, and keeps what it was asked.
class PreparedChooser final : public KOVAVSFDataGridLib::FieldChooser
{
public:
    std::optional<QString> answer;
    QStringList fields;
    QStringList chosen;

    std::optional<QString> ChooseVisibleFields(const QString &,
                                               const QList<KOVAVSFDataGridLib::OfferedField> &allFields,
                                               const QStringList &partFields) override;
    std::optional<QString> ChooseSort(const QString &,
                                      const QList<KOVAVSFDataGridLib::OfferedField> &allFields,
                                      const QStringList &sortTerms) override;
};

// The parts of a control with an open result, as a load leaves them.
struct LoadedParts : testing::Test
{
    LoadedParts();

    void load(const QString &statement, const QString &partStatement = {}, const QString &sort = {});
    // Leaves the field catalogue without any width.
    void forgetWidths();
    qint64 position() const;
    KOVAVSFDataGridLib::colShowSQLSentences &history() { return filter.SQLManager(); }
    QString latestStatement() const;

    // The off-screen platform says of each popup menu what it can't do.
    ExpectedWarning offscreen{QStringLiteral("This plugin does not support")};
    TestDatabase database;
    QWidget control;
    KOVAVSFDataGridLib::GridParts parts{control};
    KOVAVSFDataGridLib::ResultSet result{*parts.Adodc1};
    KOVAVSFDataGridLib::PageView pages{parts, result};
    KOVAVSFDataGridLib::ConnectionFieldReader reader{result};
    PreparedChooser chooser;
    std::shared_ptr<KOVAVSFDataGridLib::clsFilterManagement> manager =
        std::make_shared<KOVAVSFDataGridLib::clsFilterManagement>(&reader, &chooser);
    KOVAVSFDataGridLib::clsFilterManagement &filter = *manager;
    QString statement;
    QString condition; // what the filter dialog gives
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
    KOVAVSFDataGridLib::frm_FullScreen viewer{host()};
    ViewerUser user{viewer};

private:
    KOVAVSFDataGridLib::ViewerHost host();
};

// Five records, two on a page.
struct PagedViewer : Viewer
{
    PagedViewer();
};

} // namespace KovaTest
