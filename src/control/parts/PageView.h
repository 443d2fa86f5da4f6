#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class GridParts;
class ResultSet;

// Shows one page of the open result in the main grid, and tells which in the page box and the label.
class PageView
{
public:
    // Both must outlive this object.
    PageView(const GridParts &parts, const ResultSet &result);

    // From 1; 0 when no page can be shown. A page behind the last one becomes the last.
    void setCurrentPage(qint64 page);
    int currentPage() const { return m_currentPage; }

    // Fills the grid with the current page, or cuts it to its heading row when nothing is open, and makes
    // the first row current. The recordset then stands on that row's record; it tells nobody of the move.
    // Throws ADODB::Error, and changes nothing, when an edit of the current record can't be saved.
    // `pictureField` is the exact name of the field that holds a picture.
    void fill(const QString &pictureField);
    // 0-based; -1 when the result has no picture field.
    int pictureFieldIndex() const { return m_pictureFieldIndex; }

    // How many records a page shows; the result must be open.
    int rowsOfPage(int page) const;
    // The record behind a grid row of the current page, from 1.
    qint64 recordOfRow(int row) const;

    // What the user typed into the page box: characters are dropped from its end until a whole number
    // is left. 0 when none is.
    static qint32 pageFromText(QString text);

private:
    bool canShowPage() const;

    const GridParts &m_parts;
    const ResultSet &m_result;
    int m_currentPage = 0;
    int m_pictureFieldIndex = -1;
};

} // namespace KOVAVSFDataGridLib
