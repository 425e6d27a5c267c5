# program.py - runs teskarlt natively or under Wine and gives what it answered.
import dataclasses
import json
import os
import pathlib
import subprocess
import sys

TIME_LIMIT = 600  # seconds; a hanging program ends here, a slow machine or sanitizer does not
WRITING = ("new", "insert", "edit", "move", "erase", "apply", "mark", "renumber", "refit", "undo")  # the commands that write drawings


@dataclasses.dataclass
class Answer:
    status: int
    stdout: str
    stderr: str

    @property
    def json(self):
        return json.loads(self.stdout)


class Program:
    """The program of one build; paths among its arguments are given in the program's own notation."""

    def __init__(self, root, build, data_folder):
        self.windows = build == "windows"
        self.folder = root / "build" / build / "bin"
        self.path = self.folder / ("TESKARLT.EXE" if self.windows else "teskarlt")
        self.data_folder = data_folder

    def spelled(self, argument):
        """An argument as the program understands it: under Wine, a path begins with a drive."""
        if isinstance(argument, pathlib.Path) and argument.is_absolute() and self.windows:
            return f"Z:{argument}"
        return str(argument)

    def __call__(self, *arguments, cwd=None, env=None, stdin=None):
        """Runs the program; never raises for its exit status."""
        command = [*(["wine"] if self.windows else []), str(self.path), *map(self.spelled, arguments)]
        variables = {"TESKAR_DATA": self.data_folder, **(env or {})}

        def run():
            return subprocess.run(command, cwd=cwd, capture_output=True, timeout=TIME_LIMIT,
                                  env={**os.environ, **{name: self.spelled(value) for name, value in variables.items()}},
                                  **({"stdin": subprocess.DEVNULL} if stdin is None else {"input": stdin.encode()}))
        done = run()
        # On a busy machine about one start in a thousand under Wine ends at once, with status 1 and without a word.
        # The program itself never fails without a word.
        if self.windows and (done.returncode, done.stdout, done.stderr) == (1, b"", b""):
            print("Wine did not start:", *command, file=sys.stderr)
            done = run()
        texts = [stream.decode("utf-8", "replace").replace("\r\n", "\n") for stream in (done.stdout, done.stderr)]
        return Answer(done.returncode, *texts)

    def done(self, *arguments, **options):
        """Runs the program and expects that it did what was asked, and that nothing is wrong with what it wrote."""
        answer = self(*arguments, **options)
        assert answer.status == 0, f"status {answer.status}\n{answer.stdout}{answer.stderr}"
        if arguments[0] in WRITING and not self.windows:  # the bytes are the same there, and Wine is slow
            for path in arguments[1:]:
                if isinstance(path, pathlib.Path) and path.suffix == ".dxf" and path.is_file():
                    verdict = self("check", path)
                    assert verdict.status == 0, verdict.stdout + verdict.stderr
        return answer
