#include "ui/qt/application.h"

#include <xcb/xcb.h>

#include <QDir>
#include <QFile>
#include <QFont>
#include <QLibraryInfo>
#include <QProxyStyle>

#include "ui/qt/accessible.h"

namespace ui::qt {

namespace {

class Style final : public QProxyStyle {
public:
    Style() : QProxyStyle("Fusion") {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
            case PM_TextCursorWidth: return 0;  // the input boxes draw a caret of the game's own shape
            case PM_ScrollBarExtent: return 16;
            default: return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

bool CanConnectToX11() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool connected = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return connected;
}

bool HasWaylandSocket() {
    const QString name = qEnvironmentVariable("WAYLAND_DISPLAY");
    return !name.isEmpty() && QFile::exists(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR")).filePath(name));
}

// Some systems have Qt without its Wayland plugin; Qt would abort there.
bool KnowsWayland() {
    const QDir platforms(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms");
    return !platforms.entryList({"*wayland*"}).isEmpty();
}

}  // namespace

std::optional<std::string> ChoosePlatform() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return std::nullopt;
    if (qEnvironmentVariableIsSet("DISPLAY") && CanConnectToX11()) {
        // X11 even where Wayland is offered as well, because only X11 lets a program place, shape and raise its windows.
        qputenv("QT_QPA_PLATFORM", "xcb");
        return std::nullopt;
    }
    if (HasWaylandSocket()) {
        if (KnowsWayland()) return std::nullopt;
        return "Na této obrazovce (Wayland) potřebuje hra balíček qt6-wayland. Nainstaluj ho prosím a spusť ji znovu.";
    }
    return "Hra potřebuje obrazovku, ale žádný displej (DISPLAY ani WAYLAND_DISPLAY) není dostupný. "
           "Bez monitoru ji lze spustit na virtuálním displeji: xvfb-run -a ./play";
}

Application::Application(int& argumentCount, char** arguments) : application(argumentCount, arguments) {
    QApplication::setStyle(new Style);
    QApplication::setApplicationName("orvel-tavoren");
    QGuiApplication::setDesktopFileName("orvel-tavoren");
    QApplication::setQuitOnLastWindowClosed(false);
    // Text is exactly as wide in these families, so lines break where they would in Arial.
    QFont::insertSubstitutions("Arial", {"Liberation Sans", "Arimo"});
    InstallAccessibility();
}

}  // namespace ui::qt
