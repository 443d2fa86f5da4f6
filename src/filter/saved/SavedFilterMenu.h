#pragma once

#include "filter/saved/SavedFilters.h"

#include <QtWidgets/QToolButton>

#include <functional>

class QMenu;

namespace KOVAVSFDataGridLib {

// Access to the saved filters of a table, as a text of SavedFilters. Both functions are called for each use,
// because other windows save filters of the same table.
struct FilterShelf
{
    std::function<QString()> read;
    std::function<void(const QString &)> write;

    bool isThere() const { return read && write; }
    // A text that can't be parsed means no filters.
    SavedFilters filters() const;
    void put(const SavedFilters &filters) const { write(filters.toText()); }
};

// A button with a menu of a table's saved filters, for applying, saving, renaming and deleting them.
class SavedFilterMenu final : public QToolButton
{
    Q_OBJECT

public:
    explicit SavedFilterMenu(QWidget *parent = nullptr);

    // Without a shelf, the button is hidden.
    void setShelf(FilterShelf shelf);
    // Returns the filter to save; no value if it isn't complete, after a message to the user.
    void setSource(std::function<std::optional<BuiltFilter>()> source) { m_source = std::move(source); }
    // Returns a description of a filter without a name.
    void setWords(std::function<QString(const BuiltFilter &)> words) { m_words = std::move(words); }

Q_SIGNALS:
    void recalled(const BuiltFilter &filter);

private:
    void fill();
    void addRecent(const SavedFilters &filters);
    QMenu *addNames(const QString &caption, const QString &name, const SavedFilters &filters,
                    void (SavedFilterMenu::*chosen)(const QString &));
    void save();
    void rename(const QString &name);
    void remove(const QString &name);
    // Empty if the user cancels, or doesn't want to replace
    // another filter with that name (other than `own`).
    QString askName(const QString &title, const QString &suggested, const QString &own = {});

    FilterShelf m_shelf;
    std::function<std::optional<BuiltFilter>()> m_source;
    std::function<QString(const BuiltFilter &)> m_words;
    QMenu *m_menu;
};

} // namespace KOVAVSFDataGridLib
