// velmar-sound FILE: plays a sound to its end. Ends with 0 when it has, also without a sound device, or else
// with 1 and a sentence on standard output. It is a program of its own for the reasons in
// docs/decisions/0042-sounds-in-a-process.md.

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
constexpr unsigned secondsToSpare = 5; // Until a device has played what it was given.

/// One playing of one file.
class Playing final : public QObject {
public:
    explicit Playing(const QString &path) {
        // Some backends take an output without a device badly.
        if (!QMediaDevices::audioOutputs().isEmpty()) {
            output_ = std::make_unique<QAudioOutput>();
            player_.setAudioOutput(output_.get());
        }
        connect(&player_, &QMediaPlayer::errorOccurred, this,
                [this](QMediaPlayer::Error /*error*/, const QString &text) { fail(text); });
        connect(&player_, &QMediaPlayer::mediaStatusChanged, this,
                [this](QMediaPlayer::MediaStatus status) { follow(status); });
        // Whatever a library waits for, this ends.
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
        // Without a device there is no end but that of the time; with one the end may get lost.
        const qint64 spare = output_ == nullptr ? 0 : secondsToSpare * 1000;
        QTimer::singleShot(std::chrono::milliseconds(player_.duration() + spare), this,
                           [] { QCoreApplication::exit(EXIT_SUCCESS); });
        if (output_ != nullptr) {
            player_.play();
        }
    }

    void fail(const QString &reason) {
        // The first error says most.
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
    // The other backend ends the process where its own plugins are missing.
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
