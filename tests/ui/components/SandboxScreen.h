#pragma once

#include "ModelRig.h"
#include "ui/components/ItemLookup.h"

#include <QCoroTask>

#include <functional>
#include <memory>

namespace quorvane::test {

// One screen alone in a window, on a model signed in to the sandbox, which QML reaches as
// `App`: the rig of the screens' tests against the sandbox. Call registerAppForQml() once first.
struct SandboxScreen {
    // `module` and `type` name the screen ("Quorvane.Bookings", "BookingsView"). `prepare` runs
    // on the model before its first refresh. False, with `why`, when anything didn't start.
    bool start(const QByteArray &module, const QByteArray &type, QSize size,
               const std::function<void(AppModel &)> &prepare = {})
    {
        return start("import QtQuick\nimport " + module + "\nWindow { width: " + QByteArray::number(size.width())
                         + "; height: " + QByteArray::number(size.height()) + "; visible: true; " + type
                         + " { anchors.fill: parent } }",
                     prepare);
    }
    // The same with the whole window written out, for a screen that needs more around it.
    bool start(const QByteArray &windowQml, const std::function<void(AppModel &)> &prepare = {})
    {
        if (!models.ready(&why))
            return false;
        model = models.makeModel();
        appForQml = model.get();
        if (prepare)
            prepare(*model);
        QCoro::waitFor(model->refresh());
        view = std::make_unique<View>(windowQml);
        why = view->warnings.join(u'\n');
        return view->ready();
    }

    ModelRig models;
    std::unique_ptr<AppModel> model;
    std::unique_ptr<View> view;
    QString why;
};

} // namespace quorvane::test
