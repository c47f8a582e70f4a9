// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gio/gio.h>

#include <QByteArray>
#include <cstdlib>

#include "adapters/qt/GameWindowQt.h"

namespace marivox::qt {
namespace {

// A GSettings key, when its schema is installed (asking for a missing one aborts).
template <class Read>
auto desktopSetting(const char* schemaId, Read read) -> decltype(read(nullptr)) {
    GSettingsSchemaSource* source = g_settings_schema_source_get_default();
    GSettingsSchema* schema =
        source != nullptr ? g_settings_schema_source_lookup(source, schemaId, TRUE) : nullptr;
    if (schema == nullptr) {
        return {};
    }
    g_settings_schema_unref(schema);
    GSettings* settings = g_settings_new(schemaId);
    auto value = read(settings);
    g_object_unref(settings);
    return value;
}

bool isHighContrastTheme(const QByteArray& theme) {
    return theme.toLower().contains("highcontrast");
}

}  // namespace

// The desktop asks for high contrast through GNOME's accessibility setting, or a high-contrast
// theme, set for the session (GTK_THEME) or the desktop.
bool GameWindowQt::desktopHighContrast() const {
    if (isHighContrastTheme(qgetenv("GTK_THEME"))) {
        return true;
    }
    const bool asked = desktopSetting("org.gnome.desktop.a11y.interface", [](GSettings* s) {
        return s != nullptr && g_settings_get_boolean(s, "high-contrast") != FALSE;
    });
    return asked || desktopSetting("org.gnome.desktop.interface", [](GSettings* s) {
               if (s == nullptr) {
                   return false;
               }
               gchar* theme = g_settings_get_string(s, "gtk-theme");
               const bool high = isHighContrastTheme(theme);
               g_free(theme);
               return high;
           });
}

}  // namespace marivox::qt
