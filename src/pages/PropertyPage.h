#pragma once

#include "../KovaExport.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <functional>

class QLineEdit;
class QVBoxLayout;

namespace KOVAVSFDataGridLib {

// A page that edits one text property of a control. The control can be any object with such a property,
// because the page knows only the property's name.
class KOVA_EXPORT PropertyPage : public QWidget
{
    Q_OBJECT
    // See Changed().
    Q_PROPERTY(bool Changed READ Changed WRITE PutChanged NOTIFY ChangedChanged)

public:
    // Writes a value to a property. A form editor sets its own writer, so that the change can be undone.
    using Writer = std::function<void(QObject &control, const QString &property, const QVariant &value)>;

    // The page shows and writes the first control. If its property can't be written, the text can only be
    // read and copied. The page doesn't own the controls, and they may be destroyed at any time.
    void SetSelectedControls(const QList<QObject *> &controls);
    // Without a writer, the page uses QObject::setProperty.
    void SetWriter(Writer writer);

    // True from the first change of the text until it is applied or another control is selected.
    bool Changed() const { return m_isChanged; }
    void PutChanged(bool on);

    // Shows the property of the selected control again. Changes that were not applied are lost.
    Q_INVOKABLE virtual void SelectionChanged();
    // Writes the text to the property. Returns false if nothing was written: if there is no control, or,
    // after a message box, if the property is read-only and its text was changed.
    Q_INVOKABLE bool ApplyChanges();

    // Wide enough for a statement of ordinary length; the page can be narrower.
    QSize sizeHint() const override;

Q_SIGNALS:
    // Changed() has a new value.
    void ChangedChanged(bool isChanged);

protected:
    // `textBox` is the object name of the page's text box. `label` is shown above it and `hint` below.
    PropertyPage(const QString &property, const QString &textBox, const QString &label, const QString &hint,
                 QWidget *parent);

    // The control that is shown and written, or null.
    QObject *control() const { return m_control; }
    // The page's text box.
    QLineEdit &text() const { return *m_text; }
    // The layout, for other parts of a page.
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
