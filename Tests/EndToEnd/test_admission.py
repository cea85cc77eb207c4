"""Owners, groups and permissions of admitted and refused configurations, for both programs."""

from harness import machine
from harness.scenario import Scenario, configuration, slide

CONTENT = configuration(slide("Admitted"))

# ada is an administrator (a member of admin), bob is not.
ADMITTED = [
    ("root", "wheel", 0o644), ("root", "admin", 0o664), ("root", "staff", 0o644), ("root", "root", 0o644),
    ("root", "wheel", 0o640), ("root", "wheel", 0o774), ("root", "wheel", 0o600),
    ("ada", "admin", 0o664), ("ada", "staff", 0o744), ("bob", "wheel", 0o464), ("bob", "admin", 0o474),
]
REFUSED = [
    ("root", "staff", 0o664), ("root", "staff", 0o654), ("root", "root", 0o664), ("root", "wheel", 0o646),
    ("root", "wheel", 0o755), ("root", "wheel", 0o645), ("ada", "staff", 0o664),
    ("bob", "admin", 0o664), ("bob", "wheel", 0o564), ("bob", "staff", 0o444), ("bob", "staff", 0o644),
]
UNREADABLE = [("root", "wheel", 0o1644), ("root", "wheel", 0o4644), ("root", "wheel", 0o2644)]


def nine_letters(mode):
    return "".join(letter if mode & (0o400 >> index) else "-" for index, letter in enumerate("rwxrwxrwx"))


def report(path, owner, group, mode):
    return (f"Config file at '{path}' has the following invalid owner/permissions:\n"
            f" [{owner}:{group} - {nine_letters(mode)}]")


def refusal(path):
    return (f"The configuration file at '{path}' has too much permissions and cannot be used.\n"
            "Allowed cases:\n"
            "- The 'user' is an 'admin' and is the only one to have the 'write' permission. Ex: '-rw-r--r--'.\n"
            "- The 'group' is 'admin' or 'wheel' and is the only one to have the 'write' permissions. "
            "Ex: '-r--rw-r--'\n"
            "- The 'user' and group are 'admin' (or group: 'wheel') and the 'other' user has no 'write' permission. "
            "Ex: '-rw-rw-r--.")


class Admission(Scenario):
    def rows(self, table):
        for owner, group, mode in table:
            with self.subTest(owner=owner, group=group, mode=oct(mode)):
                self.setUp()
                yield owner, group, mode, self.install(CONTENT, owner=owner, group=group, mode=mode)

    def assert_refused(self, path, line):
        process, screen = self.velmar()
        self.dismiss_refusal(process, screen)
        log = "\n".join(self.messages())
        self.assertIn(line, log)
        self.assertIn(f"A problem occurred while retrieving configuration: {refusal(path)}", log)
        # Refused by its attributes, before decoding.
        self.assertNotIn("Decoding configuration file...", log)
        check = self.velmarctl("check", path)
        self.assertEqual(1, check.status, check.story())
        self.assertIn(refusal(path).split("\n")[0], check.output())

    def test_shows_what_an_administrator_wrote(self):
        for _, _, _, path in self.rows(ADMITTED):
            process, screen = self.velmar()
            screen.wait_for_text("Admitted")
            process.close()
            check = self.velmarctl("check", path)
            self.assertEqual(0, check.status, check.story())

    def test_refuses_what_others_may_write_or_execute(self):
        for owner, group, mode, path in self.rows(REFUSED):
            self.assert_refused(path, report(path, owner, group, mode))

    def test_refuses_special_bits_as_unreadable(self):
        for _, _, _, path in self.rows(UNREADABLE):
            self.assert_refused(path, f"Unable to read the permissions and owner of the config file at '{path}'")

    def test_a_live_link_is_judged_as_the_link(self):
        target = self.install(CONTENT, name="elsewhere/real.plist")
        link = machine.MANAGED / "Velmar.plist"
        link.symlink_to(target)
        self.assert_refused(link, report(link, "root", "root", 0o777))

    def test_leaves_the_admission_out_on_request(self):
        path = self.install(CONTENT, owner="bob", group="staff", mode=0o666)
        self.assertEqual(0, self.velmarctl("check", "--no-admission", path).status)
        self.assertEqual(1, self.velmarctl("check", path).status)
