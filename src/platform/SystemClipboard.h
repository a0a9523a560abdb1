#pragma once

#include "Clipboard.h"

namespace quorvane {

// The desktop's clipboard. Needs a QGuiApplication; the app stays alive in the tray, so on X11
// the copied text stays available after the window that copied it closes.
class SystemClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override;
};

} // namespace quorvane
