"""schema_test VELMARCTL GENERATE-CONFIGURATIONS SOURCES: the schema accepts what the program accepts, and refuses a
broken file of each kind; the two agree on examples with a chance fault in them; docs/configuration.md is what the
program prints."""
import copy
import json
import pathlib
import plistlib
import random
import re
import subprocess
import sys
import tempfile

import jsonschema

velmarctl, generate, sources = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
schema = json.loads(subprocess.run([velmarctl, "schema"], check=True, capture_output=True).stdout)
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
failures = []


def with_change(file, path, value):
    """Returns a copy of the file with the value at the path, or without that path if the value is None."""
    changed = copy.deepcopy(file)
    place = changed
    for step in path[:-1]:
        place = place[step]
    if value is None:
        del place[path[-1]]
    else:
        place[path[-1]] = value
    return changed


def paths(value, path=()):
    """Yields the path of each part of a file, except the file itself."""
    steps = value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ()
    for step, part in steps:
        yield path + (step,)
        yield from paths(part, path + (step,))


# Faults that only the program detects: references between parts, rules over several items, and the language
# of conditions.
BEYOND_SCHEMA = re.compile("has an undefined parent|[Uu]ndefined variable|boolean expression|'Slides' configuration array|"
                           "sum (for containers|of widths)|lesser than the slides count")
FAULTS = [None, "x", "", "1", "#12", "Simple", "${A}", 0, -1, 1.5, 1.0, 1e300, 2**63, True, [], {}, [1], ["a", 1],
          [1, 2.5], {"a": "b"}, {"a": 1}, b"d"]

with tempfile.TemporaryDirectory() as directory:
    chance = random.Random(1)
    damaged = {}
    for number in range(400):
        file = plistlib.loads(chance.choice(sorted(sources.glob("Examples/*.plist"))).read_bytes())
        name = f"{directory}/{number}.plist"
        damaged[name] = with_change(file, chance.choice(list(paths(file))), chance.choice(FAULTS))
        pathlib.Path(name).write_bytes(plistlib.dumps(damaged[name]))
    told = subprocess.run([velmarctl, "check", "--no-admission", "--json", *damaged], capture_output=True).stdout
    refusals = {line["file"]: line["message"] for line in json.loads(told) if line["severity"] == "error"}
    for name, file in damaged.items():
        error = next(validator.iter_errors(file), None)
        if error and name not in refusals:
            failures.append(f"only the schema refuses: {error.json_path}: {error.message}")
        if not error and not BEYOND_SCHEMA.search(refusals.get(name, "undefined variable")):
            failures.append(f"only the program refuses: {refusals[name]}")
    if not 0.5 < len(refusals) / len(damaged) < 0.95:
        failures.append(f"{len(refusals)} of {len(damaged)} damaged files are refused")

with tempfile.TemporaryDirectory() as directory:
    subprocess.run([generate, directory, "60"], check=True)
    examples = sorted(sources.glob("Examples/*.plist"))
    accepted = examples + sorted(pathlib.Path(directory).glob("*.plist"))
    if len(examples) < 4 or len(accepted) < 64:
        failures.append(f"only {len(examples)} examples of {len(accepted)} files")
    if subprocess.run([velmarctl, "check", "--no-admission", *accepted], capture_output=True).returncode != 0:
        failures.append("the program refuses an example or a made file")
    for path in accepted:
        for error in validator.iter_errors(plistlib.loads(path.read_bytes())):
            failures.append(f"{path.name} is refused: {error.json_path}: {error.message}")

component = {"Type": "Text", "Text": "Hello"}
picture = {"Type": "Image", "URL": "a.png"}
action = {"Type": "NavigateToSlide", "Index": 0}
file = {
    "ColorStyles": {"Ink": {"DarkMode": "#FFFFFF", "LightMode": "#000000"}},
    "Window": {"OnScreen": "Simple"},
    "Slides": [{"Containers": [{"Components": [component, picture], "WidthRatio": 1.0}]}],
    "Monitoring": {"Monitors": [{"Type": "Application", "Name": "A", "Installer": "System"}]},
    "ActionSets": [{"Type": "Parallel", "Actions": [action], "Triggers": ["Launch"]}],
}
slot = ["Slides", 0, "Containers", 0]
broken = {
    "a value of another kind": (["Window", "IsClosable"], "yes"),
    "a number in place of a text": (slot + ["Components", 0, "Text"], 5),
    "a required key missing": (["Window", "OnScreen"], None),
    "a case that is none": (["Window", "OnScreen"], "simple"),
    "a value out of its range": (slot + ["WidthRatio"], 1.5),
    "keys that exclude each other": (slot + ["IsLarge"], True),
    "a key missing that another one needs": (["ColorStyles", "Ink", "LightMode"], None),
    "a key missing where the others are": (slot + ["Components", 1, "URL"], None),
    "one of a pair of keys": (slot + ["Components", 1], {"Type": "Image", "URL": "a", "DarkModeURL": "b"}),
    "both of two keys of which one is allowed": (["ActionSets", 0, "Actions", 0, "Offset"], 1),
    "neither of them": (["ActionSets", 0, "Actions", 0, "Index"], None),
    "a kind of item that is none": (slot + ["Components", 0, "Type"], "Paragraph"),
    "an item without its kind": (slot + ["Components", 0, "Type"], None),
    "a colour that is none": (["ColorStyles", "Ink", "DarkMode"], "112233"),
    "a trigger that is none": (["ActionSets", 0, "Triggers", 0], "Launch "),
    "a text in place of an item": (slot + ["Components", 0], "Hello"),
}
for error in validator.iter_errors(file):
    failures.append(f"the whole file is refused: {error.json_path}: {error.message}")
for fault, (path, value) in broken.items():
    changed = with_change(file, path, value)
    if validator.is_valid(changed):
        failures.append(f"accepted: {fault}")
    with tempfile.NamedTemporaryFile(suffix=".plist") as written:
        written.write(plistlib.dumps(changed))
        written.flush()
        if subprocess.run([velmarctl, "check", "--no-admission", written.name], capture_output=True).returncode != 1:
            failures.append(f"the program accepts: {fault}")

reference = subprocess.run([velmarctl, "reference"], check=True, capture_output=True).stdout
if reference != (sources / "docs/configuration.md").read_bytes():
    failures.append("docs/configuration.md is not what velmarctl reference prints: write it anew")

print("\n".join(failures) or f"{len(accepted)} files accepted, {len(broken)} refused, {len(damaged)} judged alike")
sys.exit(1 if failures else 0)
