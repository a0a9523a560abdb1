// The worked-out words of the sign-in panel, the first-run guide and About.
#include "About.h"
#include "AboutModel.h"
#include "KeyLabel.h"
#include "OnboardingText.h"
#include "SignInText.h"
#include "UrlOpener.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

using Links = QList<LinkListModel::Link>;
Q_DECLARE_METATYPE(Links)
Q_DECLARE_METATYPE(AboutConfig)

namespace {
const QUrl site(u"https://quorvane.app"_s);
const QUrl profile(u"https://www.linkedin.com/in/dorsk"_s);
const QUrl mail(u"mailto:hello@dorsk.dev"_s);

AboutConfig fullConfig()
{
    return {.version = u"2.0"_s, .build = u"200"_s, .site = site.toString(),
            .privacy = u"https://quorvane.app/privacy"_s, .terms = u"https://quorvane.app/terms"_s,
            .makerName = u"Ilvane Dorsk"_s, .makerSite = u"https://www.dorsk.dev/"_s,
            .makerProfile = profile.toString(), .makerMail = u"hello@dorsk.dev"_s, .legal = {}};
}
} // namespace

class SetupTextsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void spokenCode_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("spoken");
        QTest::newRow("letters and digits") << u"WXYZ-1234"_s << u"Code W X Y Z - 1 2 3 4"_s;
        QTest::newRow("blanks add no pauses") << u"AB CD"_s << u"Code A B C D"_s;
        QTest::newRow("no code yet") << QString() << u"Code"_s;
    }
    void spokenCode()
    {
        QFETCH(QString, code);
        QTEST(SignInText::spokenCode(code), "spoken");
    }

    void keyLabel_data()
    {
        QTest::addColumn<QKeySequence>("keys");
        QTest::addColumn<QString>("label");
        QTest::newRow("join") << QKeySequence(Qt::ControlModifier | Qt::ShiftModifier | Qt::Key_J) << u"Ctrl+Shift+J"_s;
        // Qt itself writes "Meta+Ctrl+Alt+S".
        QTest::newRow("share hot key") << QKeySequence(Qt::MetaModifier | Qt::ControlModifier | Qt::AltModifier | Qt::Key_S)
                                       << u"Ctrl+Alt+Super+S"_s;
        QTest::newRow("only the first of two") << QKeySequence(u"Ctrl+K, Ctrl+J"_s) << u"Ctrl+K"_s;
        QTest::newRow("no key") << QKeySequence() << QString();
    }
    void keyLabel()
    {
        QFETCH(QKeySequence, keys);
        QTEST(KeyLabel::text(keys), "label");
    }

    void guide()
    {
        QCOMPARE(OnboardingText::stepLabel(0, 4), u"Step 1 of 4"_s);
        QCOMPARE(OnboardingText::primaryLabel(4, 4), u"Get Started"_s); // past the end too
        QCOMPARE(OnboardingText::shareTip(), u"Ctrl+Alt+Super+S shares a few open times from anywhere"_s);
    }

    void versionLine_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("build");
        QTest::addColumn<QString>("line");
        QTest::newRow("both") << u"2.0"_s << u"200"_s << u"Version 2.0 (200)"_s;
        QTest::newRow("no build number") << u"2.0.1"_s << QString() << u"Version 2.0.1"_s;
        QTest::newRow("no version") << QString() << u"200"_s << u"Version 2.0 (200)"_s;
    }
    void versionLine()
    {
        QFETCH(QString, version);
        QFETCH(QString, build);
        QTEST(About::versionLine(version, build), "line");
    }

    void links_data()
    {
        QTest::addColumn<AboutConfig>("config");
        QTest::addColumn<QStringList>("product");
        QTest::addColumn<Links>("author");
        const AboutConfig full = fullConfig();
        QTest::newRow("all configured") << full << QStringList{u"Website"_s, u"Privacy"_s, u"Terms"_s}
                                        << Links{{u"dorsk.dev"_s, QUrl(u"https://www.dorsk.dev/"_s)},
                                                 {u"LinkedIn"_s, profile}, {u"Quorvane"_s, site}, {u"Contact"_s, mail}};
        AboutConfig some = full;
        some.privacy.clear();
        some.site.clear();
        some.makerSite = u"http://dorsk.example:8080/about"_s;
        some.makerMail = u"dorsk.dev"_s; // an address without @ is none
        QTest::newRow("some not configured")
            << some << QStringList{u"Terms"_s}
            << Links{{u"dorsk.example"_s, QUrl(u"http://dorsk.example:8080/about"_s)}, {u"LinkedIn"_s, profile}};
        // Configuration is trusted, but the app's opener would refuse these anyway.
        AboutConfig unsafe = full;
        unsafe.site = u"file:///etc/passwd"_s;
        unsafe.terms = u"javascript:alert(1)"_s;
        unsafe.makerSite = u"not a site"_s;
        unsafe.makerMail = u"javascript:alert(1)//@x"_s;
        QTest::newRow("targets that can't be opened") << unsafe << QStringList{u"Privacy"_s}
                                                      << Links{{u"LinkedIn"_s, profile}};
    }
    void links()
    {
        QFETCH(AboutConfig, config);
        QFETCH(QStringList, product);
        QStringList titles;
        for (const LinkListModel::Link &link : About::productLinks(config))
            titles.append(link.title);
        QCOMPARE(titles, product);
        QTEST(About::authorLinks(config), "author");
    }

    // As this build was configured, and as QML reads it.
    void aboutModel()
    {
        QList<QUrl> opened;
        const UrlOpener opener([&opened](const QUrl &url) { return opened.append(url), true; });
        AboutModel about(AboutConfig::fromBuild(), opener);
        QCOMPARE(about.versionLine(), u"Version 2.0 (200)"_s);
        QCOMPARE(about.madeBy(), u"Made by Ilvane Dorsk"_s);

        LinkListModel model(About::authorLinks(fullConfig()));
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QModelIndex last = model.index(model.rowCount() - 1);
        QCOMPARE(model.data(last, LinkListModel::TitleRole).toString(), u"Contact"_s);
        QCOMPARE(model.roleNames().value(LinkListModel::UrlRole), QByteArray("url"));
        QVERIFY(about.open(model.data(last, LinkListModel::UrlRole).toUrl()));
        QVERIFY(!about.open(QUrl(u"file:///etc/passwd"_s)));
        QCOMPARE(opened, QList<QUrl>{mail});
    }
};

QTEST_MAIN(SetupTextsTest)
#include "tst_setup_texts.moc"
