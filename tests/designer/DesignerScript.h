#pragma once

#include <QtCore/QString>

#include <functional>

class QDesignerFormEditorInterface;
class QDesignerFormWindowInterface;
class QDialog;
class QWidget;

namespace KovaTest {

// Plays a developer in Qt Designer, with mouse and keyboard, and writes down what is seen: one `name=value` a
// line into the file named by KOVA_SCRIPT_REPORT.
class DesignerScript
{
public:
    explicit DesignerScript(QDesignerFormEditorInterface &core) : m_core(core) {}

    // Exits Qt Designer at its end, with exit code 1 if a step could not be done.
    void run();

private:
    void play();
    void printWidgetBox();
    void openForm();
    void printDesignMode();
    void editSqlShow();
    void undoAndRedo();
    void previewData();
    void save();

    // Opens the grid's context menu, chooses the entry and uses the dialog that it opens.
    void choose(const QString &entry, const std::function<void(QDialog &)> &useDialog);
    void edit(const QString &property, const QVariant &value);
    void print(const QString &name, const QString &value) const;

    QDesignerFormEditorInterface &m_core;
    QDesignerFormWindowInterface *m_form = nullptr;
    QWidget *m_grid = nullptr;
};

} // namespace KovaTest
