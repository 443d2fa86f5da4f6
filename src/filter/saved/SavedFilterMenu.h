#pragma once

#include "filter/saved/SavedFilters.h"

#include <QtWidgets/QToolButton>

#include <functional>

class QMenu;

namespace KOVAVSFDataGridLib {

// Where the saved filters of a table are kept, as a text of SavedFilters. Both are called for each use, as
// other windows keep filters of the same table.
struct FilterShelf
{
    std::function<QString()> read;
    std::function<void(const QString &)> write;

    bool isThere() const { return read && write; }
    // What can't be read any more counts as nothing.
    SavedFilters filters() const;
    void put(const SavedFilters &filters) const { write(filters.toText()); }
};

// A button with the saved filters of a table, to recall, save, rename and delete them.
class SavedFilterMenu final : public QToolButton
{
    Q_OBJECT

public:
    explicit SavedFilterMenu(QWidget *parent = nullptr);

    // Without a shelf the button hides.
    void setShelf(FilterShelf shelf);
    // The filter that is there to be saved; nothing while it isn't complete, which the user has been shown.
    void setSource(std::function<std::optional<BuiltFilter>()> source) { m_source = std::move(source); }
    // How a filter without a name is called.
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
    // Empty when the user cancels, or doesn't want to replace a filter that has the name and isn't called
    // `own` itself.
    QString askName(const QString &title, const QString &suggested, const QString &own = {});

    FilterShelf m_shelf;
    std::function<std::optional<BuiltFilter>()> m_source;
    std::function<QString(const BuiltFilter &)> m_words;
    QMenu *m_menu;
};

} // namespace KOVAVSFDataGridLib
