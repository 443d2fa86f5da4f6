#pragma once

#include "forms/value/ShownValue.h"

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;

namespace KOVAVSFDataGridLib {

// Shows one value whole: a text with its line breaks, JSON and XML indented, a picture, or bytes. It keeps a
// copy of the value, so it depends on nothing.
class ValuePane final : public QWidget
{
    Q_OBJECT

public:
    explicit ValuePane(QWidget *parent = nullptr);

    // In place of the one that is shown; the keyboard stays where it is.
    void put(const ShownValue &value);
    // Shows none.
    void clear();
    // Gives it the keyboard, as setFocus() does.
    void focusValue();
    // The field whose value it is.
    QString field() const { return m_value.field; }
    // Beside those that copy and save.
    void addButton(QWidget *button);
    // False in a window where others have these keys already.
    void putHasAccessKeys(bool on);

    // Writes the value, a text as UTF-8. False when it can't be written; what was there stays then.
    bool saveTo(const QString &file, QString &failure) const;

Q_SIGNALS:
    // It can be seen from now on; before that, nobody needs to put a value into it.
    void shown();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void addText(const QString &text);
    void addBytes();
    void copy();
    void save();
    void dropAccessKeys();
    void setUsable(bool isUsable);
    QString ending() const;
    QString summary() const;

    ShownValue m_value;
    QImage m_picture;
    QString m_format; // of a picture or formatted text
    QString m_note;
    QTabWidget *m_views;
    QLabel *m_place;
    QLabel *m_summary;
    QPushButton *m_copy = nullptr;
    QPushButton *m_save = nullptr;
    QBoxLayout *m_foot;
    QBoxLayout *m_buttons;
    bool m_hasAccessKeys = true;
};

} // namespace KOVAVSFDataGridLib
