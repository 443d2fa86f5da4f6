#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <variant>
#include <vector>

namespace KOVAVSFDataGridLib {

class ColumnView;
class Session;

// The layout of a result's columns, as a small JSON text:
//
//   {"layout":1,"columns":[{"field":"名称","width":1500},{"field":"单价","hidden":true}],"frozen":1}
//
// The columns are listed from the left. Widths are in twips (omitted for the default), "format" is in the
// syntax of ADODB::DisplayFormat, "frozen" is the number of frozen columns, and "nulls" is true if Null is
// shown as such.
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
    // Parses a layout, or returns the reason why the text isn't one, for the user.
    static std::variant<SavedLayout, QString> fromText(const QString &text);

    bool operator==(const SavedLayout &) const = default;
};

// The layout of what is shown. Hidden columns have the width that they get when shown again.
SavedLayout layoutOf(Session &session);

// Applies a layout to the columns; other fields are not changed. Hiding and showing columns is a choice of
// fields and an entry of the history. Returns why nothing was changed; empty on success.
QString restoreLayout(Session &session, const SavedLayout &layout);

} // namespace KOVAVSFDataGridLib
