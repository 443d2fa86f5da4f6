#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <variant>
#include <vector>

namespace KOVAVSFDataGridLib {

class ColumnView;
class Session;

// How the columns of a result are laid out, as a small JSON text:
//
//   {"layout":1,"columns":[{"field":"名称","width":1500},{"field":"单价","hidden":true}],"frozen":1}
//
// The columns are in their order from the left; widths are twips (left out for the default), "format" is what
// ADODB::DisplayFormat writes, "frozen" is how many of the first stay in view, and "nulls" is true where
// cells without a value say so.
struct SavedLayout
{
    struct Column
    {
        QString field;
        int width = -1; // twips; -1 for the default
        bool isHidden = false;
        QString format = {};

        bool operator==(const Column &) const = default;
    };

    static constexpr qsizetype longestText = 1000000; // characters
    static constexpr int widest = 100000;             // twips

    std::vector<Column> columns;
    int frozen = 0;
    bool showsNulls = false;

    QString toText() const;
    // The layout of a text, or why it is none, for the user to read.
    static std::variant<SavedLayout, QString> fromText(const QString &text);

    bool operator==(const SavedLayout &) const = default;
};

// The layout of what is shown. Columns that are hidden have the width with which they come back.
SavedLayout layoutOf(Session &session);

// Lays the columns out; those of other fields stay as they are. Hiding and showing columns is a choice of
// fields and an entry of the history. Answers why nothing was changed; empty when it was.
QString restoreLayout(Session &session, const SavedLayout &layout);

} // namespace KOVAVSFDataGridLib
