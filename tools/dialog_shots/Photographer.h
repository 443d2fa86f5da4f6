#pragma once

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdio>
#include <functional>

// Saves pictures of windows in a folder, and says their names.
class Photographer
{
public:
    explicit Photographer(const QString &folder) : m_folder(folder) {}

    void take(QWidget &window, const QString &name)
    {
        window.show();
        window.activateWindow();
        // Whatever a part has grown or shrunk by reaches the layouts around it one after the other.
        for (int layouts = 0; layouts < 4; ++layouts)
            QApplication::processEvents();
        const QString file = m_folder.filePath(name + QStringLiteral(".png"));
        m_isDone &= window.grab().save(file);
        std::puts(qUtf8Printable(file));
    }
    void fail(const QString &why)
    {
        std::fprintf(stderr, "%s\n", qUtf8Printable(why));
        m_isDone = false;
    }
    bool isDone() const { return m_isDone; }

private:
    QDir m_folder;
    bool m_isDone = true;
};

// The part of a window that has this name.
template<typename T>
T &part(const QWidget &window, const QString &name)
{
    return *window.findChild<T *>(name);
}

// Pictures of the control in use with a database: its bars, menus, and the windows that it opens.
void takeGrid(Photographer &photographer, const QString &connectionString);
// The host program with several tabs and a value in its pane. `database` is a file.
void takeHost(Photographer &photographer, const QString &database);
