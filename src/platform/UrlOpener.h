#pragma once

#include <QUrl>

#include <functional>

namespace quorvane {

// The one way the app hands a link to the desktop. Links come from the server (meeting links,
// booking pages), so only web pages and mail addresses get through: never local files,
// scripts or other applications' schemes.
class UrlOpener
{
public:
    using Launcher = std::function<bool(const QUrl &)>;

    // Without a launcher, links go to the desktop's default handler.
    explicit UrlOpener(Launcher launcher = {});

    [[nodiscard]] static bool allows(const QUrl &url);

    // False when the link was refused or the desktop couldn't open it.
    bool open(const QUrl &url) const;

private:
    Launcher m_launcher;
};

} // namespace quorvane
