#include "language/Language.h"

#include "language/LanguageTexts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtCore/QTranslator>

#include <memory>
#include <optional>
#include <utility>

namespace KOVAVSFDataGridLib::Language {

using namespace Qt::StringLiterals;

namespace {

// Null for Chinese, the language of the source texts. Owned by the application, which may be destroyed and
// created again.
QPointer<QTranslator> &translator()
{
    static QPointer<QTranslator> installed;
    return installed;
}

struct Held
{
    int holds = 0;
    std::optional<QLocale::Language> chosen = {}; // meanwhile
};

Held &held()
{
    static Held held;
    return held;
}

bool useEnglish()
{
    if (translator())
        return true;
    auto english = std::make_unique<QTranslator>();
    if (!english->load(u":/KOVAVSFDataGridLib/translations/KOVAVSFDataGridLib_en.qm"_s))
        return false;
    english->setParent(QCoreApplication::instance());
    translator() = english.release();
    return QCoreApplication::installTranslator(translator());
}

bool switchTo(QLocale::Language language)
{
    if (language == QLocale::English)
        return useEnglish();
    delete translator(); // the destructor removes it
    return true;
}

class Translated final : public QObject
{
public:
    Translated(QObject &widget, std::function<void()> write) : QObject(&widget), m_write(std::move(write))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange)
            m_write();
        return QObject::eventFilter(watched, event);
    }

private:
    const std::function<void()> m_write;
};

} // namespace

QString current()
{
    return LanguageTexts::Name;
}

bool use(const QString &name)
{
    const QLocale::Language language = name.isEmpty() ? QLocale::Chinese : QLocale(name).language();
    if (!QCoreApplication::instance() || (language != QLocale::Chinese && language != QLocale::English))
        return false;
    if (held().holds == 0)
        return switchTo(language);
    held().chosen = language;
    return true;
}

QString chosen()
{
    const auto meanwhile = held().chosen;
    return !meanwhile ? current() : *meanwhile == QLocale::English ? u"en"_s : u"zh-CN"_s;
}

Hold::Hold()
{
    ++held().holds;
}

Hold::~Hold()
{
    if (--held().holds > 0)
        return;
    const auto language = std::exchange(held().chosen, std::nullopt);
    if (language && QCoreApplication::instance())
        switchTo(*language);
}

void keepTranslated(QObject &widget, std::function<void()> write)
{
    write();
    new Translated(widget, std::move(write));
}

} // namespace KOVAVSFDataGridLib::Language
