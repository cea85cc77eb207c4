// velmar-sound FILE: plays a sound to its end. Exits with 0 after playing, even without a sound device,
// otherwise with 1 and a sentence on standard output. docs/decisions/0042-sounds-in-a-process.md explains why
// it is a separate program.

#include <QAudioDevice>
#include <QAudioOutput>
#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr unsigned secondsToLoad = 15;
constexpr unsigned secondsToSpare = 5; // Time for a device to play its buffer.

/// Plays one file.
class Playing final : public QObject {
public:
    explicit Playing(const QString &path) {
        // Some backends fail on an output without a device.
        if (!QMediaDevices::audioOutputs().isEmpty()) {
            output_ = std::make_unique<QAudioOutput>();
            player_.setAudioOutput(output_.get());
        }
        connect(&player_, &QMediaPlayer::errorOccurred, this,
                [this](QMediaPlayer::Error /*error*/, const QString &text) { fail(text); });
        connect(&player_, &QMediaPlayer::mediaStatusChanged, this,
                [this](QMediaPlayer::MediaStatus status) { follow(status); });
        // Ends the process even if a library hangs.
        alarm(secondsToLoad);
        player_.setSource(QUrl::fromLocalFile(path));
    }

private:
    void follow(QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::InvalidMedia) {
            fail(player_.errorString());
        } else if (status == QMediaPlayer::EndOfMedia) {
            QCoreApplication::exit(EXIT_SUCCESS);
        } else if (status == QMediaPlayer::LoadedMedia && !hasBegun_) {
            begin();
        }
    }

    void begin() {
        hasBegun_ = true;
        if (!player_.hasAudio() || player_.duration() <= 0) {
            fail(QStringLiteral("it holds no sound"));
            return;
        }
        alarm(static_cast<unsigned>(player_.duration() / 1000) + 2 * secondsToSpare);
        // The timer ends the playing without a device, and is a fallback with one.
        const qint64 spare = output_ == nullptr ? 0 : secondsToSpare * 1000;
        QTimer::singleShot(std::chrono::milliseconds(player_.duration() + spare), this,
                           [] { QCoreApplication::exit(EXIT_SUCCESS); });
        if (output_ != nullptr) {
            player_.play();
        }
    }

    void fail(const QString &reason) {
        // The first error is the most informative.
        if (!std::exchange(hasFailed_, true)) {
            std::printf("%s\n", qUtf8Printable(reason));
            QCoreApplication::exit(EXIT_FAILURE);
        }
    }

    std::unique_ptr<QAudioOutput> output_;
    QMediaPlayer player_;
    bool hasBegun_ = false;
    bool hasFailed_ = false;
};

} // namespace

int main(int argumentCount, char **arguments) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const QString ffmpeg =
        QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/multimedia/libffmpegmediaplugin.so");
    // The other backend aborts the process if its own plugins are missing.
    if (!qEnvironmentVariableIsSet("QT_MEDIA_BACKEND") && QFile::exists(ffmpeg)) {
        qputenv("QT_MEDIA_BACKEND", "ffmpeg");
    }
    QCoreApplication application(argumentCount, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Velmar"));
    const QStringList texts = QCoreApplication::arguments();
    if (texts.size() != 2) {
        std::printf("usage: velmar-sound FILE\n");
        return EXIT_FAILURE;
    }
    std::unique_ptr<Playing> playing;
    QTimer::singleShot(0, &application, [&] { playing = std::make_unique<Playing>(texts.at(1)); });
    return QCoreApplication::exec();
}
