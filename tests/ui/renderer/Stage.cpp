#include "Stage.h"

#include "Translations.h"
#include "components/IconProvider.h"
#include "shell/AppWindow.h"
#include "tray/TrayController.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace quorvane::test {

namespace {

constexpr int frameTimeoutMs = 10'000;

// Objects below `root` in both trees: QObject children and visual children.
QObject *findIn(QObject *root, const QString &name)
{
    if (!root)
        return nullptr;
    if (root->objectName() == name)
        return root;
    if (auto *item = qobject_cast<QQuickItem *>(root)) {
        for (QQuickItem *child : item->childItems()) {
            if (QObject *found = findIn(child, name))
                return found;
        }
    }
    for (QObject *child : root->children()) {
        if (QObject *found = findIn(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

Stage::Stage(const Scene &scene)
    : m_scene(scene)
    , m_translation(Translations::install(scene.language.isEmpty() ? u"en"_s : scene.language))
    , m_app(std::make_unique<FixtureApp>(scene.fixture))
    , m_engine(std::make_unique<QQmlApplicationEngine>())
{
    m_engine->addImportPath(u"qrc:/qt/qml"_s);
    m_engine->addImageProvider(u"icon"_s, new IconProvider);
    QObject::connect(m_engine.get(), &QQmlEngine::warnings, m_engine.get(), [this](const QList<QQmlError> &list) {
        for (const QQmlError &w : list)
            m_problems.append(w.toString());
    });
}

Stage::~Stage()
{
    // Windows first, while the model they bind to still exists.
    delete m_popover;
    m_engine.reset();
}

bool Stage::show()
{
    if (!m_scene.language.isEmpty() && m_translation.isEmpty())
        m_problems.append(u"no translation \"%1\""_s.arg(m_scene.language));
    m_engine->load(QUrl(u"qrc:/qt/qml/Quorvane/Shell/Root.qml"_s));
    if (m_engine->rootObjects().isEmpty()) {
        m_problems.append(u"the shell did not load"_s);
        return false;
    }
    if (m_scene.window == "popover"_L1) {
        // The tray's popover isn't one of the shell's windows: it is made as the tray makes it.
        m_popover = quorvane::TrayController::createPopover(*m_engine);
        if (m_popover)
            m_popover->show();
    } else {
        m_app->shell().open(AppWindow::fromName(m_scene.window).value_or(AppWindow::Main));
    }
    QQuickWindow *shown = window();
    if (!shown) {
        m_problems.append(u"no window \"%1\""_s.arg(m_scene.window));
        return false;
    }
    if (m_scene.size.isValid())
        shown->resize(m_scene.size);
    if (!waitForFrame(shown))
        return false;
    if (m_scene.prepare)
        m_scene.prepare(*this);
    wait(m_scene.settleMs);
    return m_problems.isEmpty();
}

QImage Stage::grab()
{
    QQuickWindow *shown = window();
    return shown ? shown->grabWindow() : QImage();
}

QQuickWindow *Stage::window(const QString &id) const
{
    for (QWindow *w : QGuiApplication::topLevelWindows()) {
        if (w->objectName() == id && w->isVisible())
            return qobject_cast<QQuickWindow *>(w);
    }
    return nullptr;
}

QObject *Stage::find(const QString &objectName) const
{
    QQuickWindow *shown = window();
    if (!shown)
        return nullptr;
    if (QObject *found = findIn(shown->contentItem(), objectName))
        return found;
    return findIn(shown, objectName);
}

void Stage::set(const QString &objectName, const char *property, const QVariant &value)
{
    QObject *target = find(objectName);
    if (!target)
        m_problems.append(u"nothing named \"%1\" in the window"_s.arg(objectName));
    else if (!target->setProperty(property, value))
        m_problems.append(u"\"%1\" has no property %2"_s.arg(objectName, QLatin1StringView(property)));
}

void Stage::wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

bool Stage::waitForFrame(QQuickWindow *shown)
{
    QEventLoop loop;
    bool drawn = false;
    const auto connection = QObject::connect(shown, &QQuickWindow::frameSwapped, &loop, [&] {
        drawn = true;
        loop.quit();
    });
    QTimer::singleShot(frameTimeoutMs, &loop, &QEventLoop::quit);
    shown->update();
    loop.exec();
    QObject::disconnect(connection);
    if (!drawn)
        m_problems.append(u"window \"%1\" drew nothing"_s.arg(m_scene.window));
    return drawn;
}

Scene sectionScene(const QString &name, AppSection section, std::function<void(Stage &)> after,
                   std::function<void(Stage &)> before)
{
    Scene scene;
    scene.name = name;
    scene.prepare = [section, after = std::move(after), before = std::move(before)](Stage &stage) {
        if (before)
            before(stage);
        stage.app().model().setSection(section);
        Stage::wait(100);
        if (after)
            after(stage);
    };
    return scene;
}

} // namespace quorvane::test
