#pragma once

#include "control/input/record/ListedField.h"
#include "grid/painting/CellDelegate.h"

#include <functional>
#include <vector>

namespace KOVAVSFDataGridLib {

// Paints the single-record list: names of required fields have a mark, pictures are shown, and a Null has a
// pale sign, to distinguish it from an empty text.
class RecordDelegate final : public CellDelegate
{
    Q_OBJECT

public:
    // `fields` are those of the rows and must outlive this object. `isNull` returns whether a field (0-based)
    // of the record is Null now.
    RecordDelegate(const std::vector<ListedField> &fields, std::function<bool(int)> isNull, QObject *parent);

    static constexpr int linesOfPicture = 8;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    // Explains the mark of a name in a tool tip.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    const ListedField *fieldOf(const QModelIndex &index) const;
    void paintPicture(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                      const QImage &picture) const;

    const std::vector<ListedField> &m_fields;
    std::function<bool(int)> m_isNull;
};

} // namespace KOVAVSFDataGridLib
