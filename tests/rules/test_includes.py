# test_includes.py - who may include whom; docs/ARCHITECTURE.md draws the same arrows.
import re

from sources import ROOT, code

LIBRARY, BREVANTA, HOST = "Library/src/", "programs/common/brevanta/", "programs/teskarlt/"

# Each part of the code, the folder that holds it, and what it may include besides itself.
PARTS = {
    "geometry": (LIBRARY + "geometry/", set()),
    "lttools": (LIBRARY + "lttools/", {"inc", "heap"}),
    "collation": ("Library16/Inc/", {"lttools", "heap"}),
    "heap": ("platform/Heap", set()),
    "platform": ("platform/", {"heap"}),
    "inc": (BREVANTA + "inc/", {"geometry", "platform"}),
    "window": (BREVANTA + "window/", {"inc", "geometry", "platform"}),
    "arx": (BREVANTA + "arx/", {"window", "inc", "geometry", "lttools", "collation", "platform"}),
    "dialog": (BREVANTA + "dialog/", {"window", "inc", "geometry", "platform"}),
    "resources": (BREVANTA + "resources/", {"platform"}),
    "dxf tags": (HOST + "dxf/tags/", {"errors", "platform"}),
    "dxf read": (HOST + "dxf/read/", {"dxf tags", "errors", "geometry", "platform"}),
    "dxf write": (HOST + "dxf/write/", {"dxf read", "dxf tags", "errors", "platform"}),
    "dxf": (HOST + "dxf/", {"dxf write", "dxf read", "dxf tags", "errors", "platform"}),
    "drawing": (HOST + "drawing/", {"dxf", "dxf read", "dxf tags", "errors", "window", "inc", "geometry", "platform"}),
    "modules": (HOST + "modules/", {"drawing", "dxf", "dxf read", "dxf tags", "errors", "window", "inc", "geometry",
                                    "platform"}),
    "catalogue": (HOST + "catalogue/", {"modules", "dxf", "dxf tags", "errors", "window", "inc", "platform"}),
    "check": (HOST + "check/", {"drawing", "dxf", "dxf read", "dxf tags", "errors", "window", "inc", "geometry",
                                "platform"}),
    "preview": (HOST + "preview/", {"drawing", "dxf", "dxf read", "dxf tags", "errors", "window", "geometry"}),
    "schedule": (HOST + "schedule/", {"terminal", "drawing", "dxf tags", "window"}),
    "plot": (HOST + "plot/", {"preview", "schedule", "drawing", "dxf tags", "errors", "window", "geometry"}),
    "windows": (HOST + "windows/", {"plot", "schedule", "modules", "catalogue", "drawing", "dxf", "dxf tags", "errors", "window",
                                    "inc", "geometry", "platform"}),
    "terminal": (HOST + "terminal/", {"errors", "platform"}),
    "commands": (HOST + "commands/", {"windows", "plot", "schedule", "terminal", "catalogue", "check", "preview", "modules",
                                      "drawing", "dxf", "dxf read", "dxf tags", "errors", "window", "inc", "geometry",
                                      "platform"}),
    "external": ("external/", set()),
    "errors": (HOST + "Error", {"platform"}),
    "main": (HOST + "main", {"commands", "platform"}),
}
# Folders that an include may start from, and the libraries that only the host, tests and benchmarks use.
INCLUDE_ROOTS = ("", LIBRARY, BREVANTA, "programs/", HOST, "Library16/")
HOST_LIBRARIES = ("zlib.h", "CLI/", "fmt/", "nlohmann/", "gtest/", "gmock/", "benchmark/")
# Libraries that take long to compile, and the only sources that pay for them.
SLOW_LIBRARIES = {"CLI/": {"terminal/Options.cpp"},
                  "nlohmann/": {"terminal/Json.cpp", "windows/JobsFile.cpp", "preview/Glb.cpp"}}
SYSTEM_HEADERS = re.compile(r"<\w+\.h>|<sys/")
INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]', re.M)

SHIPPED = [path for path in code() if path.parts[0] not in ("tests", "benchmarks")]


def part_of(path):
    """The part whose folder is the longest that holds the path, None outside all of them."""
    holding = [(len(folder), name) for name, (folder, _) in PARTS.items() if str(path).startswith(folder)]
    return max(holding)[1] if holding else None


def resolved(path, name):
    """The file of the project that an include with quotes means, relative to the root."""
    for folder in (str(path.parent) + "/", *INCLUDE_ROOTS):
        if (ROOT / folder / name).is_file():
            return (ROOT / folder / name).resolve().relative_to(ROOT)
    return None


def includes(path):
    return INCLUDE.findall((ROOT / path).read_text())


def breaches_of_arrows(path):
    own = part_of(path)
    if own is None:
        yield f"{path} belongs to no part; name it in PARTS and in docs/ARCHITECTURE.md"
        return
    for mark, name in includes(path):
        target = resolved(path, name) if mark == '"' else None
        if mark == '"' and target is None:
            yield f'{path}: "{name}" is not a file of this project'
        allowed = {own} | PARTS[own][1] | ({"heap"} if "platform" in PARTS[own][1] else set())
        if target and part_of(target) not in allowed:
            yield f"{path} ({own}) must not include {target}"


def test_includes_follow_the_arrows():
    assert [breach for path in SHIPPED for breach in breaches_of_arrows(path)] == []


def test_modules_use_the_standard_library_alone():
    modules = [path for path in SHIPPED if not str(path).startswith(HOST)]
    included = [(str(path), name) for path in modules for mark, name in includes(path) if mark == "<"]
    assert [pair for pair in included if pair[1].startswith(HOST_LIBRARIES)] == []
    assert [pair for pair in included if SYSTEM_HEADERS.match(f"<{pair[1]}>")
            and not pair[0].startswith("platform/")] == []


def test_slow_libraries_stay_behind_narrow_interfaces():
    for library, sources in SLOW_LIBRARIES.items():
        including = {str(path).removeprefix(HOST) for path in SHIPPED
                     if any(name.startswith(library) for _, name in includes(path))}
        assert including == sources


def test_system_differences_stay_in_platform():
    mentions = [str(path) for path in code()
                if part_of(path) != "platform" and re.search(r"\b_WIN32\b|\b__linux__\b", (ROOT / path).read_text())]
    assert mentions == []
