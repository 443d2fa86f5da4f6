#pragma once

#include "forms/value/ShownValue.h"

#include <QtGui/QImage>
#include <QtWidgets/QDialog>

class QLabel;
class QTabWidget;

namespace KOVAVSFDataGridLib {

// Shows one value whole: a text with its line breaks, JSON and XML indented, a picture, or bytes. It is not
// modal and keeps a copy of the value, so it depends on nothing.
class ValueDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ValueDialog(QWidget *parent);

    void show(const ShownValue &value);
    // Shows another value in place of the one that is shown; the keyboard stays where it is.
    void replace(const ShownValue &value);
    using QDialog::show;

    // Writes the value, a text as UTF-8. False when it can't be written; what was there stays then.
    bool saveTo(const QString &file, QString &failure) const;

private:
    void addText(const QString &text);
    void addBytes();
    void copy();
    void save();
    QString ending() const;
    QString summary() const;

    ShownValue m_value;
    QImage m_picture;
    QString m_format; // of a picture or formatted text
    QString m_note;
    QTabWidget *m_views;
    QLabel *m_place;
    QLabel *m_summary;
};

} // namespace KOVAVSFDataGridLib
