#include "support/SampleFiles.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

using namespace Qt::StringLiterals;

namespace KovaTest {

QString sampleFile(const QString &name)
{
    if (const QString folder = qEnvironmentVariable("KOVA_TEST_DATA"); !folder.isEmpty())
        return QFileInfo::exists(folder + u'/' + name) ? folder + u'/' + name : QString();
    QDir folder(QStringLiteral(KOVA_SOURCE_DIR));
    do {
        const QString path = folder.filePath(u"shared/data/"_s + name);
        if (QFileInfo::exists(path))
            return path;
    } while (folder.cdUp());
    return {};
}

} // namespace KovaTest
