#pragma once

#include <QtDesigner/QDesignerTaskMenuExtension>

#include <QtCore/QObject>

class QWidget;

namespace KOVAVSFDataGridLib {

// The first entries in the context menu of a grid on a form: one for each property page, and one that shows
// the data.
class GridTaskMenu final : public QObject, public QDesignerTaskMenuExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerTaskMenuExtension)

public:
    // The form editor destroys the menu together with the grid.
    GridTaskMenu(QWidget &grid, QObject *parent);

    QList<QAction *> taskActions() const override { return m_actions; }
    // Runs on a double-click on the grid: the page for SQLShow.
    QAction *preferredEditAction() const override { return m_preferred; }

private:
    void openPage(const QString &name);

    QWidget &m_grid;
    QList<QAction *> m_actions;
    QAction *m_preferred = nullptr;
};

} // namespace KOVAVSFDataGridLib
