#include <Desktop/DesktopSoundPlayer.h>
#include <Desktop/QtMainQueue.h>

#include <Support/QtTest.h>
#include <Testing/TemporaryDirectory.h>

#include <QElapsedTimer>

#include <vector>

#include <sys/stat.h>

namespace velmar {
namespace {

/// Uses fake themes with the real player and the shipped sound.
class DesktopSoundPlayerTest : public QtTest<> {
protected:
    DesktopSoundPlayerTest() {
        places_ = DesktopSoundPlayer::placesOfProcess();
        places_.themes = {directory_.path("own"), directory_.path("shared")};
        places_.theme = "mine";
        places_.locale = "de_AT";
        theme("shared/mine", "[Sound Theme]\nInherits=parent,mine\nDirectories=surround,stereo\n"
                             "[surround]\nOutputProfile=5.1\n[stereo]\nOutputProfile=stereo\n");
        theme("shared/parent", "[Sound Theme]\nInherits=mine\nDirectories=stereo\n");
        theme("own/freedesktop", "[Sound Theme]\nDirectories=stereo\n");
    }

    void theme(const std::string &name, const std::string &index) {
        directory_.write(name + "/index.theme", index);
    }
    std::string sound(const std::string &name) { return directory_.write(name, "RIFF....WAVE"); }

    /// Writes a silent sound file and returns its path.
    std::string silence(const std::string &name, int milliseconds) {
        const int size = milliseconds * 16;
        const auto number = [](unsigned value, int bytes) {
            std::string text;
            for (; bytes > 0; --bytes, value >>= 8) {
                text += static_cast<char>(value & 0xff);
            }
            return text;
        };
        const auto bytes = static_cast<unsigned>(size);
        return directory_.write(name, "RIFF" + number(bytes + 36, 4) + "WAVEfmt " + number(16, 4) +
                                          number(1, 2) + number(1, 2) + number(8000, 4) + number(16000, 4) +
                                          number(2, 2) + number(16, 2) + "data" + number(bytes, 4) +
                                          std::string(bytes, '\0'));
    }

    /// Plays all sounds at once and waits for their outcomes.
    std::vector<SoundOutcome> play(const std::vector<std::string> &paths) {
        QtMainQueue mainQueue;
        DesktopSoundPlayer player(mainQueue, places_);
        std::vector<SoundOutcome> outcomes;
        for (const std::string &path : paths) {
            player.play({path}, [&](const SoundOutcome &outcome) { outcomes.push_back(outcome); });
        }
        QElapsedTimer time;
        time.start();
        while (outcomes.size() < paths.size() && time.elapsed() < 30'000) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        }
        QCoreApplication::processEvents();
        return outcomes;
    }

    TemporaryDirectory directory_;
    DesktopSoundPlayer::Places places_;
};

TEST_F(DesktopSoundPlayerTest, FindsSoundsByNameInThemesAndLanguages) {
    const std::string own = sound("own/mine/stereo/own.oga");
    sound("shared/mine/stereo/own.oga");
    const std::string german = sound("shared/mine/stereo/de/hello.wav");
    sound("shared/mine/stereo/hello.oga");
    const std::string inherited = sound("shared/parent/stereo/inherited.ogg");
    const std::string common = sound("own/freedesktop/stereo/dialog-warning.oga");
    const std::string loose = sound("shared/loose.wav");
    sound("shared/mine/surround/around.oga");
    sound("shared/mine/stereo/off.oga");
    directory_.write("own/mine/stereo/off.disabled", "");
    directory_.write("shared/mine/stereo/broken.wav", "no sound");
    QtMainQueue mainQueue;
    const DesktopSoundPlayer player(mainQueue, places_);
    const std::pair<const char *, std::optional<std::string>> cases[] = {
        {"own", own},
        {"hello", german},
        {"inherited", inherited},
        {"dialog-warning", common},
        {"dialog-warning-battery-low", common},
        {"loose", loose},
        {"off", ""},
        {"Hero", places_.ownSounds + "/Hero.wav"},
        {"around", std::nullopt},
        {"broken", std::nullopt},
        {"missing", std::nullopt},
        {"", std::nullopt},
        {"../mine/stereo/own", std::nullopt},
        {"/etc/passwd", std::nullopt},
    };
    for (const auto &[name, path] : cases) {
        const auto found = player.soundNamed(name);
        EXPECT_EQ(found ? std::optional(found->path) : std::nullopt, path) << name;
    }
}

TEST_F(DesktopSoundPlayerTest, FindsSoundsInFiles) {
    const std::string blank = sound("a sound.wav"), pipe = directory_.path("pipe.wav");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    QtMainQueue mainQueue;
    const DesktopSoundPlayer player(mainQueue, places_);
    EXPECT_EQ(player.soundAt(blank), Sound{blank});
    EXPECT_EQ(player.soundAt("file://" + directory_.path() + "/a%20sound.wav"), Sound{blank});
    for (const std::string &none :
         {std::string(), directory_.path(), directory_.path("missing"), pipe,
          directory_.write("text.wav", "text"), std::string("https://host/a.wav")}) {
        EXPECT_EQ(player.soundAt(none), std::nullopt) << none;
    }
}

TEST_F(DesktopSoundPlayerTest, PlaysSideBySideToTheEndAlsoWithoutADevice) {
    QElapsedTimer time;
    time.start();
    const std::string sound = silence("one.wav", 1000);
    const auto outcomes = play({sound, sound, sound, ""});
    EXPECT_GE(time.elapsed(), 1000);
    ASSERT_EQ(outcomes.size(), 4U);
    for (const SoundOutcome &outcome : outcomes) {
        EXPECT_TRUE(outcome.hasFinished) << outcome.problem;
    }
}

TEST_F(DesktopSoundPlayerTest, SaysWhyASoundCannotBePlayed) {
    const std::string broken = directory_.write("broken.wav", "RIFF....WAVE and nothing else");
    const auto outcomes = play({broken, directory_.path("missing")});
    ASSERT_EQ(outcomes.size(), 2U);
    for (const SoundOutcome &outcome : outcomes) {
        EXPECT_FALSE(outcome.hasFinished);
        EXPECT_TRUE(outcome.problem.starts_with("The sound at " + directory_.path())) << outcome.problem;
    }
    places_.program = directory_.path("nowhere");
    const auto unplayed = play({broken});
    ASSERT_EQ(unplayed.size(), 1U);
    EXPECT_NE(unplayed[0].problem.find("velmar-sound is missing"), std::string::npos) << unplayed[0].problem;
}

TEST_F(DesktopSoundPlayerTest, EndsWhatPlaysWithThePlayer) {
    QtMainQueue mainQueue;
    auto player = std::make_unique<DesktopSoundPlayer>(mainQueue, places_);
    bool wasTold = false;
    const std::string sound = silence("long.wav", 60'000);
    player->play({sound}, [&](const SoundOutcome &) { wasTold = true; });
    QCoreApplication::processEvents();
    player->play({sound}, [&](const SoundOutcome &) { wasTold = true; });
    player.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(wasTold);
}

} // namespace
} // namespace velmar
