#pragma once

#include <QtCore/QObject>

class QCheckBox;
class QHeaderView;
class QPushButton;

namespace KOVAVSFDataGridLib {

// What is in the right end of the heading of a single record's list: a tick for pictures, and buttons for the
// previous and the next record.
class RecordHeading : public QObject
{
    Q_OBJECT

public:
    // The parts belong to `header`, which must outlive this object.
    explicit RecordHeading(QHeaderView &header);

    // Whether the user wants to see pictures; the tick is there only where the record can have some.
    bool hasPictures() const;
    void offerPictures(bool on);
    bool arePicturesOffered() const;
    // As the mouse does it.
    void clickPictures();
    // Puts the tick back without a signal.
    void undoClick();

Q_SIGNALS:
    void picturesClicked();
    // The user asked for the command of that key.
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
