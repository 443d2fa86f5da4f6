#pragma once

#include <QtWidgets/QComboBox>

namespace KOVAVSFDataGridLib {

// A choice of field names, of which there can be hundreds. Typing the first letters of a name selects it, as
// in any choice, but here also with an input method, as for Chinese. A name that does not fit ends with an
// ellipsis; the list and a tool tip show all of it.
class FieldCombo final : public QComboBox
{
    Q_OBJECT

public:
    explicit FieldCombo(QWidget *parent = nullptr);

protected:
    void showPopup() override;
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    QString shownText() const;
};

} // namespace KOVAVSFDataGridLib
