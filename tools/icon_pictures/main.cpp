// icon_pictures FOLDER: renders the toolbar's drawings for builds that have no Qt SVG module. FOLDER gets a
// PNG file for each drawing and size, with the lines in red and the accent in blue, and a resource list,
// ToolbarIcons.qrc, with all of them.
#include "control/parts/toolbar/IconMaskSizes.h"
#include "control/parts/toolbar/IconPicture.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTextStream>
#include <QtGui/QColor>

#include <cstdio>

using namespace KOVAVSFDataGridLib;

namespace {

bool writePictures(const QDir &folder)
{
    QFile listFile(folder.filePath(QStringLiteral("ToolbarIcons.qrc")));
    if (!listFile.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream list(&listFile);
    list << "<RCC>\n  <qresource prefix=\"/KOVAVSFDataGridLib\">\n";
    for (const QFileInfo &drawing : QDir(QStringLiteral(":/KOVAVSFDataGridLib/icons")).entryInfoList()) {
        const QString key = drawing.completeBaseName();
        for (const int side : iconMaskSizes) {
            const QString name = QStringLiteral("icons/%1-%2.png").arg(key).arg(side);
            const QImage mask = iconPicture(key, {side, side}, Qt::red, Qt::blue);
            if (!mask.save(folder.filePath(name)))
                return false;
            list << "    <file>" << name << "</file>\n";
        }
    }
    list << "  </qresource>\n</RCC>\n";
    list.flush();
    return list.status() == QTextStream::Ok;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: icon_pictures FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    if (!folder.mkpath(QStringLiteral("icons")) || !writePictures(folder)) {
        std::fprintf(stderr, "icon_pictures: cannot write to %s\n", argv[1]);
        return 1;
    }
    return 0;
}
