#include "ViewRig.h"

#include "IconProvider.h"
#include "SetupServices.h"

#include <QQuickStyle>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

// The modules the views are made of, linked in statically.
Q_IMPORT_QML_PLUGIN(Quorvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_OnboardingPlugin)

using namespace Qt::StringLiterals;

namespace quorvane::test {

namespace {
SetupServices *current = nullptr;
}

ViewRig::ViewRig(const QByteArray &qml, SetupServices &setup)
{
    current = &setup;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.addImageProvider(u"icon"_s, new IconProvider);
    QObject::connect(&engine, &QQmlEngine::warnings, &engine, [this](const QList<QQmlError> &warnings) {
        for (const QQmlError &warning : warnings)
            m_warnings.append(warning.toString());
    });
    engine.loadData(qml, QUrl(u"file:///onboarding-test/Host.qml"_s));
    if (!engine.rootObjects().isEmpty())
        m_window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
}

ViewRig::~ViewRig()
{
    if (m_window)
        m_window->close();
    current = nullptr;
}

void ViewRig::prepareProcess()
{
    QQuickStyle::setStyle(u"Fusion"_s);
    qmlRegisterSingletonType<SetupServices>("Quorvane.App", 1, 0, "Setup", [](QQmlEngine *, QJSEngine *) {
        Q_ASSERT_X(current, "ViewRig", "a rig must exist while QML runs");
        QQmlEngine::setObjectOwnership(current, QQmlEngine::CppOwnership);
        return current;
    });
}

bool ViewRig::ready()
{
    if (!m_window)
        m_problem = u"the QML didn't load: "_s + m_warnings.join(u'\n');
    else if (!QTest::qWaitForWindowExposed(m_window))
        m_problem = u"the window was never shown"_s;
    return m_problem.isEmpty();
}

QQuickItem *ViewRig::item(const QString &objectName) const
{
    return m_window ? m_window->findChild<QQuickItem *>(objectName) : nullptr;
}

QString ViewRig::text(const QString &objectName) const
{
    const QQuickItem *found = item(objectName);
    return found ? found->property("text").toString() : QString();
}

bool ViewRig::shown(const QQuickItem *item)
{
    for (const QQuickItem *at = item; at; at = at->parentItem()) {
        if (!at->isVisible() || at->opacity() <= 0)
            return false;
    }
    return item != nullptr;
}

void ViewRig::click(QQuickItem *item) const
{
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(m_window, Qt::LeftButton, {}, centre.toPoint());
}

} // namespace quorvane::test
