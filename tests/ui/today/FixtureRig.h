#pragma once

#include "FixtureApp.h"

#include <QCoroTask>
#include <QQuickItem>

#include <functional>

namespace quorvane::test {

// A fixture app whose server data a test can change, refreshing the model as a user would
// meet a change.
struct FixtureRig {
    explicit FixtureRig(FixtureApp::Options options = {})
        : app(options)
    {
    }

    [[nodiscard]] SetupServices &setup() { return app.setup(); }

    void serverChanges(const std::function<void(Snapshot &)> &edit)
    {
        edit(app.transport().data);
        QCoro::waitFor(app.model().refresh());
    }

    FixtureApp app;
};

// Items made by repeaters are children in the visual tree only, out of findChild's reach.
inline QList<QQuickItem *> itemsNamed(QQuickItem *root, const QString &name)
{
    QList<QQuickItem *> out;
    if (root->objectName() == name)
        out.append(root);
    for (QQuickItem *child : root->childItems())
        out.append(itemsNamed(child, name));
    return out;
}

} // namespace quorvane::test
