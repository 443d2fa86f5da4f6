#pragma once

#include <QtWidgets/QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QToolButton;

namespace KOVAVSFDataGridLib {

class ElidedLabel;

// The bar for searching the shown records: the text, the column, the options, and the result. Hidden until it
// is opened. If it is narrow, it has a second line.
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QWidget *parent);

    // Shows it with the focus in its text box.
    void open();
    // The columns to choose from. The chosen heading stays selected.
    void setColumns(const QStringList &headings, const QList<int> &columns);
    void showFound(const QString &text);

    QString text() const;
    int column() const; // 0 for all
    bool isWholeCell() const;
    bool isCaseExact() const;

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

Q_SIGNALS:
    // The text or an option has changed.
    void changed();
    void nextWanted();
    void previousWanted();
    // The user has closed it; it is hidden now.
    void closed();
    void shownOrHidden();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isWide(int width) const;
    int lineHeight() const;
    int gap() const;
    int optionsWidth() const;
    void layOut();
    void writeTexts();
    void close();

    QLineEdit *m_text;
    QToolButton *m_previous;
    QToolButton *m_next;
    ElidedLabel *m_found;
    QComboBox *m_column;
    QCheckBox *m_wholeCell;
    QCheckBox *m_matchCase;
    QToolButton *m_close;
};

} // namespace KOVAVSFDataGridLib
