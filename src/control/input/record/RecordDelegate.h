#pragma once

#include "control/input/record/ListedField.h"
#include "grid/painting/CellDelegate.h"

#include <vector>

namespace KOVAVSFDataGridLib {

// Draws the list of a single record: names of fields that need a value are marked, and pictures are shown.
class RecordDelegate final : public CellDelegate
{
    Q_OBJECT

public:
    // `fields` belong to the rows and must outlive this object.
    RecordDelegate(const std::vector<ListedField> &fields, QObject *parent);

    static constexpr int linesOfPicture = 8;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    // Says what the mark of a name means.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    const ListedField *fieldOf(const QModelIndex &index) const;
    void paintPicture(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                      const QImage &picture) const;

    const std::vector<ListedField> &m_fields;
};

} // namespace KOVAVSFDataGridLib
