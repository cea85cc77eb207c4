// velmar-render FILE DIRECTORY [--dark] [--size WxH] [--scale N] [--language CODE] [--var NAME=VALUE]...
//
// Makes the pictures for `velmarctl render`, which checks the file first, and ends when velmarctl ends.
// Prints the name of each picture on standard output once the picture is in the directory, and errors on
// standard error. The exit status is 0 if all pictures were made.

#include "RenderOptions.h"
#include "SlidePictures.h"
#include "WarningLines.h"

#include <AppDelegate/Localization.h>
#include <Base/Shared.h>
#include <Configuration/Plugin.h>
#include <Core/AppManager.h>
#include <Desktop/DesktopAppearance.h>
#include <Dispatch/UncaughtHandler.h>
#include <Foundation/FileManager.h>
#include <PrintableText.h>
#include <Variables/ContentManager.h>
#include <Variables/PopulatePlugin.h>
#include <Views/CustomViews/Theme.h>
#include <logger/ScopedDestinations.h>

#include <fmt/format.h>

#include <QApplication>
#include <QBuffer>

#include <sys/prctl.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmar {

namespace {

constexpr qint64 mostPixels = 100'000'000;

/// Selects the offscreen platform and the scale, clears the desktop's Qt settings and silences Qt's messages.
void prepareEnvironment(double scale) {
    for (const char *name : {"QT_FONT_DPI", "QT_QPA_PLATFORMTHEME", "QT_SCREEN_SCALE_FACTORS",
                             "QT_SCALE_FACTOR_ROUNDING_POLICY", "QT_STYLE_OVERRIDE", "QT_USE_PHYSICAL_DPI"}) {
        qunsetenv(name);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

QLocale localeOf(const RenderOptions &options) {
    if (!options.language) {
        return QLocale::system();
    }
    const QLocale locale(QString::fromStdString(*options.language));
    if (Localization::closestLanguage(locale).isEmpty()) {
        throw std::invalid_argument(
            fmt::format("Velmar has no texts in '{}'; it has them in {}.", *options.language,
                        Localization::languages().join(QStringLiteral(", ")).toStdString()));
    }
    return locale;
}

QSize sizeOf(const RenderOptions &options) {
    const QSize size =
        options.size ? QSize(options.size->width, options.size->height) : SlidePictures::sizeOfWindow();
    if (size.width() * options.scale * size.height() * options.scale > mostPixels) {
        throw std::invalid_argument(
            fmt::format("Pictures of {}x{} points at a scale of {} would have more than {} million pixels.",
                        size.width(), size.height(), options.scale, mostPixels / 1'000'000));
    }
    return size;
}

void write(const QImage &image, const std::string &directory, const std::string &name) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (image.isNull() || !image.save(&buffer, "PNG")) {
        throw std::runtime_error("There is not enough memory for the pictures.");
    }
    FileManager::defaultManager().writeAtomically(
        directory + '/' + name, {bytes.constData(), static_cast<std::size_t>(bytes.size())}, 0644);
    fmt::print("{}\n", name);
    std::fflush(stdout);
}

void render(const RenderOptions &options, const DesktopAppearance &appearance) {
    const AppManager::Scope appManager(std::make_shared<AppManager>(URL::file(options.file)));
    ContentManager::shared()->registerVariables(*AppManager::shared()->configuration());
    for (const auto &[name, value] : options.variables) {
        ContentManager::shared()->updateVariable(name, value, false);
    }
    const auto plugin = Plugins::registerPlugin(std::make_shared<const PopulatePlugin>());
    const QSize size = sizeOf(options);
    FileManager::defaultManager().createDirectory(options.directory, 0755);
    SlidePictures pictures(size, appearance);
    const std::size_t count = SlidePictures::count();
    const std::size_t digits = std::max<std::size_t>(2, std::to_string(count).size());
    for (std::size_t index = 0; index < count; ++index) {
        write(pictures.picture(index), options.directory, fmt::format("slide-{:0{}}.png", index + 1, digits));
    }
}

int run(int argumentCount, char **arguments) {
    try {
        const std::vector<std::string> texts(arguments + std::min(argumentCount, 1),
                                             arguments + argumentCount);
        const RenderOptions options = RenderOptions::parse(texts);
        const ScopedDestinations log({std::make_shared<WarningLines>(options.file)});
        prepareEnvironment(options.scale);
        DesktopAppearance appearance; // Outlives the application, whose style uses it.
        appearance.setPrefersDark(options.isDark);
        appearance.setAnimated(false);
        int ownArguments = std::min(argumentCount, 1); // Qt has options of the same names.
        const QApplication application(ownArguments, arguments);
        Theme::install(appearance);
        Localization::install(localeOf(options));
        render(options, appearance);
        return EXIT_SUCCESS;
    } catch (...) {
        fmt::print(stderr, "velmarctl: {}\n", printable(textOf(std::current_exception())));
        return EXIT_FAILURE;
    }
}

} // namespace

} // namespace velmar

int main(int argumentCount, char **arguments) {
    // velmarctl runs in another process group, so an interrupt by the user reaches only velmarctl. The signal
    // is sent when the launching thread ends: a worker thread that lives as long as velmarctl.
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    return velmar::run(argumentCount, arguments);
}
