#pragma once

#include <QtWidgets/QComboBox>

namespace KOVAVSFDataGridLib {

// A choice among field names, of which there can be hundreds. The first letters of a name lead to it as in
// any choice, and here also when an input method brings them, as it does for Chinese.
class FieldCombo final : public QComboBox
{
    Q_OBJECT

public:
    explicit FieldCombo(QWidget *parent = nullptr);

protected:
    void inputMethodEvent(QInputMethodEvent *event) override;
};

} // namespace KOVAVSFDataGridLib
