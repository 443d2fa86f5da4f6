#pragma once

#include <QtDesigner/QDesignerTaskMenuExtension>

#include <QtCore/QObject>

class QWidget;

namespace KOVAVSFDataGridLib {

// What the context menu of a grid on a form begins with: an entry for each property page, and one that shows
// the data.
class GridTaskMenu final : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    // The form editor destroys the menu along with the grid.
    GridTaskMenu(QWidget &grid, QObject *parent);

    QList<QAction *> taskActions() const override { return m_actions; }
    // What a double-click on the grid does: the page for SQLShow.
    QAction *preferredEditAction() const override { return m_preferred; }

private:
    void openPage(const QString &name);

    QWidget &m_grid;
    QList<QAction *> m_actions;
    QAction *m_preferred = nullptr;
};

} // namespace KOVAVSFDataGridLib
