#pragma once

#include "control/input/record/ListedField.h"
#include "grid/painting/CellDelegate.h"

#include <functional>
#include <vector>

namespace KOVAVSFDataGridLib {

// Draws the list of a single record: names of fields that need a value are marked, pictures are shown, and a
// field without a value has a pale sign, which an empty text has not.
class RecordDelegate final : public CellDelegate
{
    Q_OBJECT

public:
    // `fields` belong to the rows and must outlive this object. `isNull` says whether a field (0-based) of
    // the record has no value now.
    RecordDelegate(const std::vector<ListedField> &fields, std::function<bool(int)> isNull, QObject *parent);

    static constexpr int linesOfPicture = 8;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    // Says what the mark of a name means.
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
