"""A private machine: a mount namespace with a separate root, in which /Library, /Users, /tmp and /run are empty and
the user and group databases are those below. The other folders are the real machine's, read-only."""

import os
import shutil
import subprocess
from pathlib import Path

MANAGED = Path("/Library/Managed Preferences")
SUPPORT = Path("/Library/Application Support/Velmar")
BINARIES = Path("/velmar/bin")
SOURCES = Path("/velmar/source")

# Name, user number, full name, additional groups. ada is an administrator, bob is not.
USERS = [("root", 0, "System Administrator", []), ("nobody", 65534, "nobody", []),
         ("ada", 2001, "Ada Byron", ["admin"]), ("bob", 2002, "Bob Miller", [])]
GROUPS = {"root": 0, "nogroup": 65534, "wheel": 2010, "admin": 2080, "staff": 2020}
PRIMARY = {"root": "root", "nobody": "nogroup"}
OWN_FOLDERS = ["Library", "Users", "tmp", "run", "root", "velmar"]


def user_number(name):
    return next(number for user, number, _, _ in USERS if user == name)


def group_number(name):
    return GROUPS[name]


def primary_group(user):
    return PRIMARY.get(user, "staff")


def home(user):
    return Path("/Users") / user


def permitted():
    """Returns None if the process may create a private namespace, otherwise the reason why not."""
    if os.geteuid() != 0:
        return "the end-to-end tests need root"
    trial = subprocess.run(["unshare", "--mount", "--propagation", "private", "--pid", "--fork", "true"],
                           capture_output=True, text=True)
    return None if trial.returncode == 0 else f"no private namespace here: {trial.stderr.strip()}"


def _mount(*arguments):
    subprocess.run(["mount", *map(str, arguments)], check=True)


def enter(root, binaries, sources):
    """Builds the machine below the folder root and makes it the root of this process, which must have private mount
    and process namespaces."""
    _mount("-t", "tmpfs", "-o", "mode=0755,size=512m", "velmar-machine", root)
    for name in OWN_FOLDERS:
        (root / name).mkdir(mode=0o755)
    os.chmod(root / "tmp", 0o1777)
    for entry in sorted(Path("/").iterdir()):
        target = root / entry.name
        if entry.name in OWN_FOLDERS:
            continue
        if entry.is_symlink():
            target.symlink_to(os.readlink(entry))
        elif entry.name == "proc":
            target.mkdir()
            _mount("-t", "proc", "proc", target)
        elif entry.is_dir():
            target.mkdir()
            _mount("--rbind", entry, target)
            if entry.name not in ("dev", "sys"):
                _mount("-o", "remount,bind,ro", target)
    for name, source in (("bin", binaries), ("share", binaries.parent / "share"),
                         ("libexec", binaries.parent / "libexec"), ("source", sources)):
        (root / "velmar" / name).mkdir()
        _mount("--bind", source, root / "velmar" / name)
    for name, text in (("passwd", _passwd()), ("group", _group())):
        (root / "velmar" / name).write_text(text)
        _mount("--bind", root / "velmar" / name, root / "etc" / name)
    os.chroot(root)
    os.chdir("/")


def _passwd():
    return "".join(f"{name}:x:{number}:{GROUPS[primary_group(name)]}:{full_name}:{home(name)}:/bin/sh\n"
                   for name, number, full_name, _ in USERS)


def _group():
    return "".join(f"{group}:x:{number}:{','.join(user for user, _, _, groups in USERS if group in groups)}\n"
                   for group, number in GROUPS.items())


def reset():
    """Restores the initial state of the folders that a scenario may have written to."""
    for folder in (Path("/Library"), Path("/Users"), Path("/run/systemd")):
        shutil.rmtree(folder, ignore_errors=True)
    for log in Path("/tmp").glob("*-velmar.log"):
        log.unlink()
    for folder in (MANAGED, SUPPORT):
        folder.mkdir(parents=True, mode=0o755)
    for name, number, _, _ in USERS:
        home(name).mkdir(parents=True)
        os.chown(home(name), number, GROUPS[primary_group(name)])


def seat_user(name):
    """Makes a user the user at the console, in the records of the login manager."""
    seat = Path("/run/systemd/seats/seat0")
    seat.parent.mkdir(parents=True)
    seat.write_text(f"IS_SEAT0=1\nACTIVE=c1\nACTIVE_UID={user_number(name)}\n")
    session = Path("/run/systemd/sessions/c1")
    session.parent.mkdir(parents=True)
    session.write_text(f"UID={user_number(name)}\nACTIVE=1\nSTATE=active\nCLASS=user\nSEAT=seat0\n")
