#pragma once

#include <QtCore/QPointer>
#include <QtCore/QString>

namespace ADODB {
class Adodc;
}

namespace KOVAVSFDataGridLib {

class Session;

// The target of a page button.
enum class PageStep { First, Previous, Next, Last };

// The pages of a session's result, of which its window shows one, and the current record. Pages, records and
// rows are numbered from 1.
class Pages
{
public:
    // `adodc` is not notified of what only the window needs; it may be null.
    Pages(Session &session, ADODB::Adodc *adodc);

    // The shown page; 0 if there is none.
    int current() const { return m_page; }
    int recordsOnPage(int page) const;
    // The record of a row of the current page.
    qint64 recordOfRow(qint64 row) const;
    // The row of a record on the current page; 0 if it is not on the page.
    int rowOfRecord(qint64 record) const;
    // The index of the field with the picture, from 0; -1 if there is none.
    int pictureField() const { return m_pictureField; }

    // Makes a page current, or the nearest existing one.
    void setPage(qint64 page);
    // Shows the current page. If an edit can't be saved, throws ADODB::Error and changes nothing.
    void fillPage();
    // Both. Returns false if the previous page can't be left, after a message to the user.
    bool showPage(qint64 page);
    // The same with the current layout of the columns.
    bool turnToPage(qint64 page);
    void stepPage(PageStep step);
    // Shows the page that was typed into the page box.
    void goToTypedPage(const QString &text);
    // Shows the records again after some were added or removed, and makes a record current (0: none).
    void refillAtRecord(qint64 record);

    // If a host has moved past the first or the last record, moves back to the record that is shown as
    // current.
    void returnToShownRecord();
    // Copies the record count and the position to the shared values.
    void updateRecordPosition();
    void storeRecordCount();

private:
    Session &m_session;
    const QPointer<ADODB::Adodc> m_adodc;
    int m_page = 0;
    int m_pictureField = -1;
};

} // namespace KOVAVSFDataGridLib
