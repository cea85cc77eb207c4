#include <System/ProcessWatch.h>

#include <Testing/TemporaryDirectory.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <map>

#include <unistd.h>

namespace velmar {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A fake directory of processes, desktop entries and programs.
class Machine : public testing::Test {
protected:
    struct Process {
        std::string executable = {};
        std::string unit = {};
        int parent = 1;
        std::vector<std::string> arguments = {};
        std::string environment = {};
        unsigned flags = 0;
    };

    Machine() {
        run(1, {.executable = "/usr/lib/systemd/systemd", .parent = 0});
        run(50, {.executable = "/usr/bin/bash"});
    }

    void run(int number, const Process &process) {
        const std::string name = "proc/" + std::to_string(number) + "/";
        const std::string title = process.executable.substr(process.executable.rfind('/') + 1);
        std::string stat = std::to_string(number) + " (" + title + ") S " + std::to_string(process.parent) +
                           " 1 1 0 -1 " + std::to_string(process.flags);
        for (int field = 10; field < 22; ++field) {
            stat += " 0";
        }
        directory_.write(name + "stat", stat + " " + std::to_string(++time_) + " 0 0\n");
        units_[number] = process.unit;
        std::string arguments = title;
        for (const std::string &argument : process.arguments) {
            arguments += '\0' + argument;
        }
        directory_.write(name + "cmdline", arguments + '\0');
        directory_.write(name + "environ", "A=b" + std::string(1, '\0') + process.environment);
        std::filesystem::remove(directory_.path(name + "exe"));
        if (!process.executable.empty()) {
            std::filesystem::create_symlink(process.executable, directory_.path(name + "exe"));
        }
    }

    void end(int number) { std::filesystem::remove_all(directory_.path("proc/" + std::to_string(number))); }

    std::string program(const std::string &name, const std::string &content = "") {
        return std::filesystem::canonical(directory_.write("bin/" + name, content)).string();
    }

    void entry(const std::string &identifier, const std::string &keys) {
        directory_.write("applications/" + identifier + ".desktop",
                         "[Desktop Entry]\nType=Application\n" + keys + "\n[Desktop Action x]\nExec=no\n");
    }

    /// Returns the identifiers reported by `times` successive looks.
    std::vector<std::string> look(int times = 1) {
        std::vector<std::string> identifiers;
        for (; times > 0; --times) {
            for (const RunningApplication &application : watch().look()) {
                identifiers.push_back(application.identifier);
            }
        }
        return identifiers;
    }

    ProcessWatch &watch() {
        if (!watch_) {
            watch_ = std::make_unique<ProcessWatch>(
                ProcessWatch::Places{.processes = directory_.path("proc"),
                                     .applications = {directory_.path("applications")},
                                     .executables = {directory_.path("bin")},
                                     .users = {geteuid()},
                                     .ownProcess = 60,
                                     .unitOfProcess = [this](int process) { return units_[process]; }});
        }
        return *watch_;
    }

    TemporaryDirectory directory_;

private:
    std::unique_ptr<ProcessWatch> watch_;
    std::map<int, std::string> units_;
    int time_ = 100;
};

TEST_F(Machine, NamesApplicationsByTheirUnits) {
    const std::pair<const char *, const char *> cases[] = {
        {"app-org.example.App-123.scope", "org.example.App"},
        {"app-gnome-org.example.App-123.scope", "org.example.App"},
        {"app-flatpak-org.example.App-123.scope", "org.example.App"},
        {"app-gnome-my\\x2dtool-123.scope", "my-tool"},
        {"app-gnome-my-tool-123.scope", "my-tool"},
        {"app-gnome-org.example.App.desktop-123.scope", "org.example.App"},
        {"app-org.example.App@1ac5.service", "org.example.App"},
        {"app-gnome-gnome\\x2dkeyring@autostart.service", "gnome-keyring"},
        {"app-gnome-tool.service", "tool"},
        {"app-org.example.App-1ac5.service", "org.example.App"},
        {"app-tool.service", "tool"},
        {"snap.firefox.firefox-01234567-89ab-cdef-0123-456789abcdef.scope", "firefox_firefox"},
        {"snap.code.code.01234567-89ab-cdef-0123-456789abcdef.scope", "code_code"},
        {"snap.lxd.daemon.service", "prog"},
        {"app-a\\x2.scope", "a\\x2"},
        {"session-2.scope", "prog"},
        {"app-.scope", "prog"},
    };
    int number = 100;
    for (const auto &[unit, identifier] : cases) {
        look();
        run(++number, {.executable = "/opt/prog", .unit = unit});
        EXPECT_THAT(look(2), ElementsAre(identifier)) << unit;
        end(number);
    }
}

TEST_F(Machine, NamesApplicationsByTheirEntriesOrPrograms) {
    const std::string plain = program("plain"), options = program("options"), tried = program("tried");
    const std::string python = program("python3.11"), script = program("tool", "#! /usr/bin/env python3\n");
    const std::string other = program("setup.sh", "#!" + python + " -u\n");
    program("data", "#!/bin/sh\n");
    entry("org.example.Plain", "Exec=plain %U\nHidden=false");
    entry("aaa", "Exec=" + options + " --wifi %f");
    entry("org.example.Options", "Exec=\"" + options + "\"");
    entry("org.example.Tried", "Exec=sh -c \"exec it\"\nTryExec = tried");
    entry("org.example.Tool", "Exec=env A=b tool");
    entry("org.example.Script", "Exec=python3.11 /opt/it");
    entry("kde/hidden", "Exec=/opt/hidden\nHidden=true");
    program("nested");
    entry("kde/nested", "Exec=nested");
    std::filesystem::create_directory_symlink(".", directory_.path("applications/again"));

    const std::pair<Process, const char *> cases[] = {
        {{.executable = plain}, "org.example.Plain"},
        {{.executable = plain + " (deleted)"}, "org.example.Plain"},
        {{.executable = options}, "org.example.Options"},
        {{.executable = tried}, "org.example.Tried"},
        {{.executable = directory_.path("bin/nested")}, "kde-nested"},
        {{.executable = python, .arguments = {script}}, "org.example.Tool"},
        {{.executable = python, .arguments = {"-u", other, "x"}}, "setup.sh"},
        {{.executable = python, .arguments = {directory_.path("bin/data")}}, "python3.11"},
        {{.executable = python, .arguments = {"-m", "it"}}, "python3.11"},
        {{.executable = "/opt/hidden"}, "hidden"},
        {{.executable = "/opt/My Program"}, "My Program"},
    };
    int number = 100;
    for (const auto &[process, identifier] : cases) {
        look();
        run(++number, process);
        EXPECT_THAT(look(2), ElementsAre(identifier)) << process.executable;
    }
    // An entry installed later is found as well.
    const std::string fresh = program("fresh");
    entry("org.example.Fresh", "Exec=fresh");
    run(200, {.executable = fresh});
    EXPECT_THAT(look(2), ElementsAre("org.example.Fresh"));
}

TEST_F(Machine, TellsNeitherWhatRanBeforeNorWhatIsNoApplication) {
    watch();
    run(100, {.executable = "/opt/known"});
    EXPECT_THAT(look(3), ElementsAre("known"));
    run(101, {.flags = 0x00200000});
    directory_.write("proc/102/stat", "102 (broken");
    directory_.write("proc/103/stat", "");
    directory_.write("proc/self/stat", "");
    EXPECT_THAT(look(4), IsEmpty());
    ProcessWatch stranger(
        {.processes = directory_.path("proc"), .applications = {}, .executables = {}, .users = {}});
    run(104, {.executable = "/opt/theirs"});
    EXPECT_THAT(stranger.look(), IsEmpty());
    EXPECT_THAT(stranger.look(), IsEmpty());
    EXPECT_THAT(
        ProcessWatch(
            {.processes = directory_.path("nowhere"), .applications = {}, .executables = {}, .users = {}})
            .look(),
        IsEmpty());
}

TEST_F(Machine, WaitsUntilAProcessIsTheProgramThatItIsToRun) {
    look();
    run(100, {.executable = "/usr/bin/bash", .parent = 50}); // before its exec
    EXPECT_THAT(look(), IsEmpty());
    std::filesystem::remove(directory_.path("proc/100/exe"));
    std::filesystem::create_symlink("/usr/bin/env", directory_.path("proc/100/exe"));
    EXPECT_THAT(look(), IsEmpty());
    std::filesystem::remove(directory_.path("proc/100/exe"));
    std::filesystem::create_symlink("/opt/tool", directory_.path("proc/100/exe"));
    EXPECT_THAT(look(), ElementsAre("tool"));
    EXPECT_THAT(look(3), IsEmpty());
    // A process that ends early is reported as it was last seen.
    run(101, {.executable = "/opt/brief", .parent = 50});
    EXPECT_THAT(look(), IsEmpty());
    end(101);
    EXPECT_THAT(look(), ElementsAre("brief"));
}

TEST_F(Machine, TellsAStartOnceAndEachStart) {
    const std::string scope = "app-org.example.App-1.scope", service = "app-org.example.Service.service";
    look();
    run(100, {.executable = "/opt/browser", .parent = 50});
    run(101, {.executable = "/opt/browser", .parent = 100});
    run(102, {.executable = "/opt/browser", .parent = 101});
    EXPECT_THAT(look(3), ElementsAre("browser"));
    run(103, {.executable = "/opt/browser", .parent = 100});
    EXPECT_THAT(look(3), IsEmpty());
    run(104, {.executable = "/opt/browser", .parent = 50});
    EXPECT_THAT(look(3), ElementsAre("browser"));

    // A program that continues in a child after the parent's end is reported once.
    run(110, {.executable = "/opt/daemon", .parent = 50});
    EXPECT_THAT(look(), IsEmpty());
    end(110);
    run(111, {.executable = "/opt/daemon"});
    EXPECT_THAT(look(3), ElementsAre("daemon"));

    run(120, {.executable = "/opt/app", .unit = scope});
    run(121, {.executable = "/opt/other", .unit = scope});
    EXPECT_THAT(look(), ElementsAre("org.example.App"));
    end(120);
    end(121);
    run(122, {.executable = "/opt/app", .unit = scope});
    EXPECT_THAT(look(3), IsEmpty());
    run(123, {.executable = "/opt/app", .unit = "app-org.example.App-2.scope"});
    EXPECT_THAT(look(3), ElementsAre("org.example.App"));

    run(130, {.executable = "/opt/s", .unit = service, .environment = "INVOCATION_ID=1"});
    EXPECT_THAT(look(3), ElementsAre("org.example.Service"));
    end(130);
    run(131, {.executable = "/opt/s", .unit = service, .environment = "INVOCATION_ID=2"});
    EXPECT_THAT(look(3), ElementsAre("org.example.Service"));

    // The process number is reused.
    end(104);
    directory_.write("proc/999/stat", ""); // occupies the inode of the removed directory
    run(104, {.executable = "/opt/editor", .parent = 50});
    EXPECT_THAT(look(3), ElementsAre("editor"));
}

TEST_F(Machine, TellsNothingThatItStartedItself) {
    run(60, {.executable = "/opt/velmar", .parent = 50});
    run(70, {.executable = "/usr/bin/bash", .parent = 60}); // runs before the watch starts
    look();
    run(100, {.executable = "/usr/bin/bash", .parent = 60});
    run(101, {.executable = "/opt/tool", .parent = 100});
    run(102, {.executable = "/opt/late", .parent = 70});
    EXPECT_THAT(look(), IsEmpty());
    end(100);
    run(101, {.executable = "/opt/other"}); // its parent has ended
    run(103, {.executable = "/opt/theirs", .parent = 50});
    EXPECT_THAT(look(3), ElementsAre("theirs"));
}

TEST_F(Machine, TellsInTheOrderOfTheStarts) {
    look();
    for (const int number : {300, 200, 400}) {
        run(number, {.executable = "/opt/p" + std::to_string(number), .parent = 50});
    }
    EXPECT_THAT(look(2), ElementsAre("p300", "p200", "p400"));
}

} // namespace
} // namespace velmar
