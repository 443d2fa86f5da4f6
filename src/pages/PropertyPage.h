#pragma once

#include "../KovaExport.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <functional>

class QLineEdit;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

// A page that edits one text property of a control. The control can be any object with such a property: the
// page knows nothing but the property's name.
class KOVA_EXPORT PropertyPage : public QWidget
{
    Q_OBJECT
    // See Changed().
    Q_PROPERTY(bool Changed READ Changed WRITE PutChanged NOTIFY ChangedChanged)

public:
    // Writes a value to a property. A form editor gives its own, so that the step can be undone.
    using Writer = std::function<void(QObject &control, const QString &property, const QVariant &value)>;

    // The first control is the one that is shown and written; where it can't be, the text is for reading and
    // copying only. The page owns none of them and does without one
    // that is destroyed.
    void SetSelectedControls(const QList<QObject *> &controls);
    // Without one the page writes with QObject::setProperty.
    void SetWriter(Writer writer);

    // True from the first change of the text until it was applied or another control was selected.
    bool Changed() const { return m_isChanged; }
    void PutChanged(bool on);

    // Shows the property of the selected control anew; a change that was not applied is lost.
    Q_INVOKABLE virtual void SelectionChanged();
    // Writes the text to the property. False when nothing was written: without a control, and, after telling
    // so in a message box, when the property is read-only and its text was changed.
    Q_INVOKABLE bool ApplyChanges();

    // Wide enough for a statement of ordinary length; the page can be narrower.
    QSize sizeHint() const override;

Q_SIGNALS:
    // Changed() is another value now.
    void ChangedChanged(bool isChanged);

protected:
    // `textBox` is the object name of the page's text box, `label` stands above it and `hint` below.
    PropertyPage(const QString &property, const QString &textBox, const QString &label, const QString &hint,
                 QWidget *parent);

    // The control that is shown and written; null without one.
    QObject *control() const { return m_control; }
    // The page's text box.
    QLineEdit &text() const { return *m_text; }
    // For what a page has besides its text box.
    QVBoxLayout &rows() const { return *m_rows; }

private:
    void showWhetherWritable();

    QString m_property;
    Writer m_writer;
    QPointer<QObject> m_control;
    QLineEdit *m_text;
    QVBoxLayout *m_rows;
    bool m_isChanged = false;
};

} // namespace KOVAVSFDataGridLib
