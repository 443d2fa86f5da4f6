#pragma once

#include <QtWidgets/QDialog>

class QLabel;

namespace KOVAVSFDataGridLib {

class SetFilter;

// Shows the filter builder until the user has a condition or cancels.
class frm_Filter final : public QDialog
{
    Q_OBJECT

public:
    explicit frm_Filter(QWidget *parent = nullptr);

    SetFilter &SetFilter1() { return *m_builder; }
    // Shows a picture in the band at the top. A null one changes nothing.
    void SetPicture(const QIcon &picture);
    // Empty if the dialog was cancelled.
    const QString &strFilterCondition() const { return m_strFilterCondition; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *makeBand();
    void filter();

    SetFilter *m_builder;
    QLabel *m_picture;
    QString m_strFilterCondition;
};

} // namespace KOVAVSFDataGridLib
