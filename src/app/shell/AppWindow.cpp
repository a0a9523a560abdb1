#include "shell/AppWindow.h"

#include <QMetaEnum>

namespace quorvane::AppWindow {

// The words are the enum's keys in lower case: "main", "share", "onboarding", …
QString name(Id window)
{
    return QString::fromLatin1(QMetaEnum::fromType<Id>().valueToKey(window)).toLower();
}

std::optional<Id> fromName(const QString &name)
{
    for (const Id window : all()) {
        if (AppWindow::name(window) == name)
            return window;
    }
    return std::nullopt;
}

QList<Id> all()
{
    return {Main, Share, Onboarding, About, Settings};
}

} // namespace quorvane::AppWindow
