#include <Desktop/DesktopSoundPlayer.h>

#include "SoundTheme.h"

#include <Dispatch/UncaughtHandler.h>
#include <Foundation/URL.h>
#include <Foundation/UserDirectories.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>

#include <cstring>
#include <utility>

namespace velmar {

namespace {

constexpr qint64 longestReason = 500; // bytes

/// Returns true if the file begins like a common sound format. Only the decoder decides whether it is
/// playable.
bool looksLikeSound(const QString &path) {
    QFile file(path);
    // Opening a pipe could block forever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray begin = file.read(12);
    const auto has = [&](qsizetype at, const char *mark) {
        return begin.mid(at, static_cast<qsizetype>(std::strlen(mark))) == mark;
    };
    const bool isMpegAudio = begin.size() > 2 && begin[0] == '\xff' && (begin[1] & 0xe0) == 0xe0;
    return ((has(0, "RIFF") || has(0, "RF64")) && has(8, "WAVE")) || has(0, "OggS") || has(0, "fLaC") ||
           has(0, "ID3") || isMpegAudio || (has(0, "FORM") && has(8, "AIF")) || has(0, "caff") ||
           has(0, ".snd") || has(4, "ftyp") || has(0, "\x1a\x45\xdf\xa3");
}

SoundOutcome failure(const Sound &sound, const QString &reason) {
    return {.hasFinished = false,
            .problem = "The sound at " + sound.path + " cannot be played: " + reason.toStdString() + "."};
}

} // namespace

/// The running player processes. Main thread only.
class DesktopSoundPlayer::Processes {
public:
    explicit Processes(const std::string &program) : program_(QString::fromStdString(program)) {}

    ~Processes() {
        for (auto *process : owner_.findChildren<QProcess *>()) {
            process->disconnect();
            process->kill();
            process->waitForFinished();
        }
    }
    Processes(const Processes &) = delete;
    Processes &operator=(const Processes &) = delete;

    void start(const Sound &sound, Completion completion) {
        auto *process = new QProcess(&owner_);
        const auto end = [process, completion = std::move(completion)](const SoundOutcome &outcome) {
            // A failing process may report twice.
            process->disconnect();
            process->deleteLater();
            runReportingUncaught("SoundPlayer", [&] { completion(outcome); });
        };
        QObject::connect(process, &QProcess::errorOccurred, process, [process, sound, end](auto error) {
            if (error == QProcess::FailedToStart) {
                end(failure(sound, QStringLiteral("velmar-sound is missing, ") + process->errorString()));
            }
        });
        QObject::connect(
            process, &QProcess::finished, process,
            [process, sound, end](int status, QProcess::ExitStatus how) {
                if (how == QProcess::NormalExit && status == 0) {
                    end({.hasFinished = true, .problem = {}});
                    return;
                }
                const QString reason = QString::fromUtf8(process->read(longestReason)).trimmed();
                end(failure(sound, reason.isEmpty() ? QStringLiteral("the player has failed") : reason));
            });
        // Messages of libraries are not meant for the user.
        process->setStandardErrorFile(QProcess::nullDevice());
        process->setStandardInputFile(QProcess::nullDevice());
        process->start(program_, {QString::fromStdString(sound.path)});
    }

private:
    QString program_;
    QObject owner_;
};

DesktopSoundPlayer::Places DesktopSoundPlayer::placesOfProcess() {
    const QDir program(QCoreApplication::applicationDirPath());
    const auto beside = [&](const char *path) {
        return QDir::cleanPath(program.filePath(QLatin1String(path))).toStdString();
    };
    Places places{.themes = {},
                  .theme = SoundTheme::ofUser().toStdString(),
                  .locale = QLocale::system().name().toStdString(),
                  .ownSounds = beside("../share/velmar/sounds"),
                  .program = beside("../libexec/velmar/velmar-sound")};
    for (const std::string &directory : UserDirectories::data()) {
        places.themes.push_back(directory + "/sounds");
    }
    return places;
}

DesktopSoundPlayer::DesktopSoundPlayer(MainQueue &mainQueue, Places places)
    : mainQueue_(mainQueue),
      places_(std::move(places)),
      processes_(std::make_shared<Processes>(places_.program)) {}

DesktopSoundPlayer::~DesktopSoundPlayer() = default;

std::optional<Sound> DesktopSoundPlayer::soundNamed(const std::string &name) const {
    QStringList directories;
    for (const std::string &directory : places_.themes) {
        directories.append(QString::fromStdString(directory));
    }
    const SoundTheme theme(directories, QString::fromStdString(places_.theme),
                           QString::fromStdString(places_.locale));
    const SoundTheme own({QString::fromStdString(places_.ownSounds)}, {}, {});
    const QString text = QString::fromStdString(name);
    auto path = theme.find(text);
    if (!path) {
        path = own.find(text);
    }
    if (path && path->endsWith(QStringLiteral(".disabled"))) {
        return Sound{};
    }
    return path && looksLikeSound(*path) ? std::optional(Sound{path->toStdString()}) : std::nullopt;
}

std::optional<Sound> DesktopSoundPlayer::soundAt(const std::string &fileURLOrPath) const {
    const auto url = URL::fromString(fileURLOrPath);
    const QString path = QString::fromStdString(url && url->isFileURL() ? url->path() : fileURLOrPath);
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return !path.isEmpty() && looksLikeSound(absolute) ? std::optional(Sound{absolute.toStdString()})
                                                       : std::nullopt;
}

void DesktopSoundPlayer::play(const Sound &sound, Completion completion) {
    mainQueue_.async([sound, completion = std::move(completion),
                      weakProcesses = std::weak_ptr<Processes>(processes_)]() mutable {
        const auto processes = weakProcesses.lock();
        if (!processes) {
            return;
        }
        if (sound.path.empty()) {
            completion({.hasFinished = true, .problem = {}});
        } else {
            processes->start(sound, std::move(completion));
        }
    });
}

} // namespace velmar
