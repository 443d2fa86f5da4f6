#pragma once

#include <QtCore/QObject>

class QCheckBox;
class QHeaderView;
class QPushButton;

namespace KOVAVSFDataGridLib {

// The controls at the right end of the single-record list's heading: a check box for pictures, and buttons
// for the previous and the next record.
class RecordHeading : public QObject
{
    Q_OBJECT

public:
    // The parts belong to `header`, which must outlive this object.
    explicit RecordHeading(QHeaderView &header);

    // Whether the user wants to see pictures. The check box is shown only if the record can have some.
    bool hasPictures() const;
    void offerPictures(bool on);
    bool arePicturesOffered() const;
    // Does what a mouse click does.
    void clickPictures();
    // Resets the check box without a signal.
    void undoClick();

Q_SIGNALS:
    void picturesClicked();
    // The user wants to run the command with this key.
    void commandWanted(const QString &key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QCheckBox *newPictureBox();
    QPushButton *newStepButton(const QString &key, const QString &arrow);
    void translate();
    void place();

    QHeaderView &m_header;
    QCheckBox *m_pictures;
    QPushButton *m_previous;
    QPushButton *m_next;
};

} // namespace KOVAVSFDataGridLib
