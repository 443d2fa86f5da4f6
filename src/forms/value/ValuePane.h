#pragma once

#include "forms/value/ShownValue.h"

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;

namespace KOVAVSFDataGridLib {

// Shows one complete value: a text with its line breaks, indented JSON or XML, a picture, or bytes. It has
// its own copy of the value.
class ValuePane final : public QWidget
{
    Q_OBJECT

public:
    explicit ValuePane(QWidget *parent = nullptr);

    // Shows a value instead of the current one; the keyboard focus does not move.
    void put(const ShownValue &value);
    // Shows no value.
    void clear();
    // Sets the focus to it, as setFocus() does.
    void focusValue();
    // The field that the value is from.
    QString field() const { return m_value.field; }
    // Adds a button beside those that copy and save.
    void addButton(QWidget *button);
    // False if other widgets in the window already use these keys.
    void putHasAccessKeys(bool on);

    // Writes the value, a text as UTF-8. Returns false if that fails, and leaves an existing file unchanged.
    bool saveTo(const QString &file, QString &failure) const;

Q_SIGNALS:
    // Emitted when it becomes visible. Before that, it needs no value.
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
    QString m_format; // of a picture or a formatted text
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
