#pragma once

#include <QtCore/QPointer>
#include <QtCore/QString>

namespace ADODB {
class Adodc;
}

namespace KOVAVSFDataGridLib {

class Session;

// Where a page button leads.
enum class PageStep { First, Previous, Next, Last };

// The pages of a session's result, one of which its window shows, and which record is current. Pages, records
// and rows count from 1.
class Pages
{
public:
    // `adodc` doesn't hear of what only the window needs; it may be null.
    Pages(Session &session, ADODB::Adodc *adodc);

    // The page that is shown; 0 when none can be.
    int current() const { return m_page; }
    int recordsOnPage(int page) const;
    // The record of a row of the current page.
    qint64 recordOfRow(qint64 row) const;
    // The row of a record on the current page; 0 when the page doesn't have it.
    int rowOfRecord(qint64 record) const;
    // The field with the picture, from 0; -1 when the result has none.
    int pictureField() const { return m_pictureField; }

    // Makes a page the current one, as far as there is one.
    void setPage(qint64 page);
    // Shows the current page. Throws ADODB::Error, and changes nothing, when an edit can't be saved.
    void fillPage();
    // Both; false when the page can't be left, which the user has been shown.
    bool showPage(qint64 page);
    // The same with the columns as they are laid out.
    bool turnToPage(qint64 page);
    void stepPage(PageStep step);
    // Makes the page typed into the page box the one that is shown.
    void goToTypedPage(const QString &text);
    // Shows the records once more after some were added or removed, and makes a record current (0: none).
    void refillAtRecord(qint64 record);

    // Makes the record that is shown current the result's, where a host has walked past the first or the
    // last.
    void returnToShownRecord();
    // Takes number of records and position into the shared values.
    void updateRecordPosition();
    void storeRecordCount();

private:
    Session &m_session;
    const QPointer<ADODB::Adodc> m_adodc;
    int m_page = 0;
    int m_pictureField = -1;
};

} // namespace KOVAVSFDataGridLib
