# summary.py - counts test cases in the XML files of GoogleTest and pytest.
import collections
import xml.etree.ElementTree as ElementTree

Count = collections.namedtuple("Count", "passed failed skipped")


def write_failure(folder, name, message):
    """A result file with one failed case, for a runner that gave none itself."""
    suite = ElementTree.Element("testsuite", name=name)
    case = ElementTree.SubElement(suite, "testcase", classname=name, name="gives results")
    ElementTree.SubElement(case, "failure", message=message)
    ElementTree.ElementTree(suite).write(folder / f"{name}.failure.xml")
    print(f"{name}: {message}", flush=True)


def cases(file):
    """The test cases of a result file; none when it is missing or damaged."""
    try:
        return list(ElementTree.parse(file).iter("testcase"))
    except (OSError, ElementTree.ParseError):
        return []


def outcome(case):
    """passed, failed or skipped; a disabled GoogleTest case counts as skipped."""
    if case.find("failure") is not None or case.find("error") is not None:
        return "failed"
    if case.find("skipped") is not None or case.get("status") == "notrun" or case.get("result") == "skipped":
        return "skipped"
    return "passed"


def count(folder):
    """The cases of all result files below a folder; a file without any is a failure."""
    found = collections.Counter()
    for file in folder.rglob("*.xml"):
        found.update([outcome(case) for case in cases(file)] or ["failed"])
    return Count(found["passed"], found["failed"], found["skipped"])


def line(counted):
    text = f"{counted.passed} passed, {counted.failed} failed"
    return text + (f", {counted.skipped} skipped" if counted.skipped else "")


def report(results, suites):
    """Names what failed, then prints the count as the last line. Gives the exit status."""
    for suite in suites:
        if sum(count(results / suite)) == 0:
            write_failure(results / suite, suite, "no test ran")
    print()
    for file in sorted(results.rglob("*.xml")):
        names = [f"{case.get('classname')}.{case.get('name')}" for case in cases(file) if outcome(case) == "failed"]
        for name in names if cases(file) else ["no results"]:
            print(f"failed: {file.relative_to(results)}: {name}")
    total = count(results)
    print(line(total), flush=True)
    return 0 if total.failed == 0 and total.passed > 0 else 1
