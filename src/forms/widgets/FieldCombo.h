#pragma once

#include <QtWidgets/QComboBox>

namespace KOVAVSFDataGridLib {

// A choice among field names, of which there can be hundreds. The first letters of a name lead to it as in
// any choice, and here also when an input method brings them, as it does for Chinese. A name that has no room
// ends with an ellipsis and is whole in the list and in a tool tip.
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
