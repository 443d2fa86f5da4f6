// Message boxes in a host without a translator, and with one of its own: their buttons speak the language of
// their texts.
#include "forms/Messages.h"

#include "language/Language.h"

#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <gtest/gtest.h>

#include <functional>
#include <optional>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

// The captions of the box that `show` opens, in alphabetical order, after what happens `meanwhile`.
QStringList captionsOf(const std::function<void()> &show, const std::function<void()> &meanwhile = {})
{
    QStringList captions;
    QTimer::singleShot(0, qApp, [&] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        if (meanwhile) {
            meanwhile();
            QCoreApplication::sendPostedEvents(); // as Qt posts the change to the windows
        }
        for (const QAbstractButton *button : box->buttons())
            captions += button->text();
        box->reject();
    });
    show();
    captions.sort();
    return captions;
}

// Translates all texts of Qt itself.
class HostTranslator : public QTranslator
{
public:
    HostTranslator() { QCoreApplication::installTranslator(this); }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QLatin1StringView(context).startsWith("Q"_L1) ? u"host: "_s + QLatin1StringView(source)
                                                             : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

TEST(Messages, ANoticeHasAChineseButton)
{
    EXPECT_EQ(captionsOf([] { Messages::show(nullptr, u"已加载"_s); }), QStringList(u"确定"_s));
    EXPECT_EQ(captionsOf([] { Messages::showWithCause(nullptr, u"未保存"_s, u"locked"_s); }),
              QStringList(u"确定"_s));
}

TEST(Messages, AQuestionHasChineseButtons)
{
    EXPECT_EQ(captionsOf([] { Messages::ask(nullptr, u"删除？"_s, u"删除"_s, QMessageBox::Question); }),
              QStringList({u"否(&N)"_s, u"是(&Y)"_s}));
    EXPECT_EQ(captionsOf([] { Messages::askToSave(nullptr, u"没有保存"_s, u"记录"_s); }),
              QStringList({u"保存(&S)"_s, u"取消"_s, u"放弃(&D)"_s}));
}

TEST(Messages, AnOfferIsBesideOk)
{
    EXPECT_EQ(captionsOf([] { Messages::offer(nullptr, u"记录已修改"_s, {}, u"查看新值(&V)"_s); }),
              QStringList({u"查看新值(&V)"_s, u"确定"_s}));
}

TEST(Messages, TheHostsTranslatorNamesNoButton)
{
    const HostTranslator translator;
    ASSERT_EQ(QCoreApplication::translate("QPlatformTheme", "&Yes"), u"host: &Yes"_s);
    EXPECT_EQ(captionsOf([] { Messages::ask(nullptr, u"删除？"_s, u"删除"_s, QMessageBox::Question); }),
              QStringList({u"否(&N)"_s, u"是(&Y)"_s}));
    EXPECT_EQ(captionsOf([] { Messages::askToSave(nullptr, u"没有保存"_s, u"记录"_s); }),
              QStringList({u"保存(&S)"_s, u"取消"_s, u"放弃(&D)"_s}));
    EXPECT_EQ(captionsOf([] { Messages::show(nullptr, u"已加载"_s); }), QStringList(u"确定"_s));
}

TEST(Messages, ATranslatorThatComesWhileABoxIsOpenNamesNoButton)
{
    std::optional<HostTranslator> translator;
    EXPECT_EQ(captionsOf([] { Messages::ask(nullptr, u"删除？"_s, u"删除"_s, QMessageBox::Question); },
                         [&] { translator.emplace(); }),
              QStringList({u"否(&N)"_s, u"是(&Y)"_s}));
}

// The windows hear of it later, when the box is there.
TEST(Messages, ATranslatorThatComesJustBeforeABoxNamesNoButton)
{
    QWidget window;
    window.show();
    const HostTranslator translator;
    EXPECT_EQ(captionsOf([&] { Messages::askToSave(&window, u"没有保存"_s, u"记录"_s); }, [] {}),
              QStringList({u"保存(&S)"_s, u"取消"_s, u"放弃(&D)"_s}));
}

TEST(Messages, ABoxThatIsOpenFollowsTheLanguage)
{
    EXPECT_EQ(captionsOf([] { Messages::show(nullptr, u"已加载"_s); }, [] { Language::use(u"en"_s); }),
              QStringList(u"OK"_s));
    Language::use(u"zh-CN"_s);
}
