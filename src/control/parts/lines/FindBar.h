#pragma once

#include <QtWidgets/QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QToolButton;

namespace KOVAVSFDataGridLib {

class ElidedLabel;

// The bar that looks for a text in what is shown: the text, the column, how it is compared, and what was
// found. Hidden until it is opened. Where it is narrow it has a second line.
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QWidget *parent);

    // Shows it with the keyboard in its text.
    void open();
    // The columns to choose from; the one with the chosen heading stays chosen.
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
    // The text or how it is compared has changed.
    void changed();
    void nextWanted();
    void previousWanted();
    // The user has closed it; it is hidden.
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
