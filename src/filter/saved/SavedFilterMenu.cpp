#include "filter/saved/SavedFilterMenu.h"

#include "filter/FilterTexts.h"
#include "forms/FormTexts.h"
#include "forms/Messages.h"

#include <QtCore/QPointer>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// A text of the user as a menu shows it.
QString entry(const QString &text)
{
    constexpr qsizetype longest = 60; // characters
    const QString shown = text.size() <= longest ? text : text.left(longest - 1) + u'…';
    return QString(shown).replace(u'&', u"&&"_s);
}

} // namespace

SavedFilters FilterShelf::filters() const
{
    const auto kept = SavedFilters::fromText(read());
    const auto *const filters = std::get_if<SavedFilters>(&kept);
    return filters ? *filters : SavedFilters();
}

SavedFilterMenu::SavedFilterMenu(QWidget *parent) : QToolButton(parent), m_menu(new QMenu(this))
{
    setText(FilterTexts::SavedFilters);
    setToolTip(FilterTexts::SavedFiltersTip);
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setFocusPolicy(Qt::StrongFocus);
    setMenu(m_menu);
    m_menu->setObjectName(u"mnuSaved"_s);
    m_menu->setToolTipsVisible(true);
    m_menu->setAccessibleName(FilterTexts::SavedFiltersTip);
    connect(m_menu, &QMenu::aboutToShow, this, &SavedFilterMenu::fill);
    setShelf({});
}

void SavedFilterMenu::setShelf(FilterShelf shelf)
{
    m_shelf = std::move(shelf);
    setVisible(m_shelf.isThere());
}

void SavedFilterMenu::fill()
{
    qDeleteAll(m_menu->findChildren<QMenu *>(Qt::FindDirectChildrenOnly));
    m_menu->clear();
    const SavedFilters filters = m_shelf.filters();
    for (const SavedFilters::Named &named : filters.named()) {
        QAction *const action = m_menu->addAction(entry(named.name));
        action->setToolTip(m_words(named.filter));
        connect(action, &QAction::triggered, this, [this, named] { Q_EMIT recalled(named.filter); });
    }
    if (!filters.named().isEmpty())
        m_menu->addSeparator();
    addRecent(filters);
    m_menu->addAction(FilterTexts::SaveFilter, this, &SavedFilterMenu::save)->setObjectName(u"actSave"_s);
    addNames(FilterTexts::RenameFilter, u"mnuRename"_s, filters, &SavedFilterMenu::rename);
    addNames(FilterTexts::DeleteFilter, u"mnuDelete"_s, filters, &SavedFilterMenu::remove);
}

void SavedFilterMenu::addRecent(const SavedFilters &filters)
{
    QMenu *const recent = m_menu->addMenu(FilterTexts::RecentFilters);
    recent->setObjectName(u"mnuRecent"_s);
    recent->setToolTipsVisible(true);
    recent->menuAction()->setEnabled(!filters.recent().isEmpty());
    for (const BuiltFilter &filter : filters.recent()) {
        const QString words = m_words(filter);
        QAction *const action = recent->addAction(entry(words));
        action->setToolTip(words);
        connect(action, &QAction::triggered, this, [this, filter] { Q_EMIT recalled(filter); });
    }
}

QMenu *SavedFilterMenu::addNames(const QString &caption, const QString &name, const SavedFilters &filters,
                                 void (SavedFilterMenu::*chosen)(const QString &))
{
    QMenu *const names = m_menu->addMenu(caption);
    names->setObjectName(name);
    names->menuAction()->setEnabled(!filters.named().isEmpty());
    for (const SavedFilters::Named &named : filters.named())
        connect(names->addAction(entry(named.name)), &QAction::triggered, this,
                [this, chosen, name = named.name] { (this->*chosen)(name); });
    return names;
}

void SavedFilterMenu::save()
{
    const auto filter = m_source();
    if (!filter)
        return;
    const QString name = askName(FilterTexts::SaveFilterTitle, m_words(*filter));
    if (name.isEmpty())
        return;
    SavedFilters filters = m_shelf.filters();
    if (filters.keep(name, *filter))
        m_shelf.put(filters);
    else
        Messages::show(this, FilterTexts::TooManyFilters, FilterTexts::SaveFilterTitle);
}

void SavedFilterMenu::rename(const QString &name)
{
    const QString newName = askName(FilterTexts::RenameFilterTitle, name, name);
    if (newName.isEmpty())
        return;
    SavedFilters filters = m_shelf.filters();
    filters.rename(name, newName);
    m_shelf.put(filters);
}

void SavedFilterMenu::remove(const QString &name)
{
    const QPointer<SavedFilterMenu> alive(this);
    if (!Messages::ask(this, FilterTexts::AskDeleteFilter.arg(name), FilterTexts::DeleteFilterTitle,
                       QMessageBox::Question, QMessageBox::No) ||
        !alive)
        return;
    SavedFilters filters = m_shelf.filters();
    filters.remove(name);
    m_shelf.put(filters);
}

QString SavedFilterMenu::askName(const QString &title, const QString &suggested, const QString &own)
{
    const QPointer<QInputDialog> dialog = new QInputDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"dlgFilterName"_s);
    dialog->setWindowTitle(title);
    dialog->setLabelText(FilterTexts::FilterName);
    dialog->setTextValue(SavedFilters::nameOf(suggested));
    dialog->setOkButtonText(FormTexts::Ok);
    dialog->setCancelButtonText(FormTexts::Cancel);
    if (auto *const edit = dialog->findChild<QLineEdit *>()) {
        edit->setMaxLength(static_cast<int>(SavedFilters::longestName));
        edit->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    }
    QString name;
    connect(dialog, &QInputDialog::textValueSelected, dialog,
            [&name](const QString &typed) { name = SavedFilters::nameOf(typed); });
    const QPointer<SavedFilterMenu> alive(this);
    dialog->exec();
    if (!alive || name.isEmpty())
        return {};
    if (name != own && m_shelf.filters().find(name) &&
        !Messages::ask(this, FilterTexts::AskReplaceFilter.arg(name), title, QMessageBox::Question,
                       QMessageBox::No))
        return {};
    return alive ? name : QString();
}

} // namespace KOVAVSFDataGridLib
