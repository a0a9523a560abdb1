#pragma once

#include "LoginItem.h"

#include <QString>

namespace quorvane {

// Start at login through an XDG autostart entry, "autostart/com.peldrachen.quorvane.desktop"
// in the user's config directory. Nothing to approve on Linux.
class AutostartLoginItem final : public LoginItem
{
public:
    // The entry in XDG_CONFIG_HOME (~/.config by default) that starts this installation.
    AutostartLoginItem();
    AutostartLoginItem(const QString &configHome, const QString &executable);

    [[nodiscard]] QString entryPath() const { return m_entryPath; }

    // The entry exists and the desktop hasn't been told to skip it.
    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] bool needsApproval() const override { return false; }
    [[nodiscard]] bool set(bool enabled) override;

    // The AppImage when running from one (the binary inside it moves on every run), else this binary.
    [[nodiscard]] static QString currentExecutable();
    // The program as an Exec value: quoted and escaped the way desktop entries require.
    [[nodiscard]] static QString execValue(const QString &program);

private:
    [[nodiscard]] QByteArray entry() const;

    QString m_entryPath;
    QString m_executable;
};

} // namespace quorvane
