# browser.py - headless Chromium over the pipe of its debugging protocol.
import base64
import fcntl
import itertools
import json
import os
import select
import subprocess
import time

TIME_LIMIT = 60  # seconds, for one answer
OPTIONS = ["--headless=new", "--no-sandbox", "--remote-debugging-pipe", "--use-gl=angle", "--use-angle=swiftshader",
           "--enable-unsafe-swiftshader", "--hide-scrollbars", "--no-first-run", "--disable-background-networking"]
READ_FD, WRITE_FD = 3, 4  # where the browser expects its pipe


class Browser:
    """One browser with one page; what goes wrong in the page is gathered in `complaints`, its requests in `requests`."""

    def __init__(self, profile):
        to_browser, self._out = os.pipe()
        self._in, from_browser = os.pipe()
        ends = [fcntl.fcntl(fd, fcntl.F_DUPFD, 10) for fd in (to_browser, from_browser)]
        os.close(to_browser), os.close(from_browser)

        def connect():
            os.dup2(ends[0], READ_FD), os.dup2(ends[1], WRITE_FD)

        self._process = subprocess.Popen(["chromium", *OPTIONS, f"--user-data-dir={profile}", "about:blank"],
                                         stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                         preexec_fn=connect, pass_fds=(READ_FD, WRITE_FD))
        for end in ends:
            os.close(end)
        self._numbers = itertools.count(1)
        self._buffer = b""
        self._session = None
        self.complaints, self.requests, self._events = [], [], []
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        self._session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(f"{domain}.enable")

    def close(self):
        self._process.kill()
        self._process.wait()
        os.close(self._in), os.close(self._out)

    def call(self, method, **parameters):
        number = next(self._numbers)
        message = {"id": number, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        os.write(self._out, json.dumps(message).encode() + b"\0")
        while True:
            answer = self._receive()
            if answer.get("id") == number:
                assert "error" not in answer, f"{method}: {answer['error']}"
                return answer["result"]

    def _receive(self):
        deadline = time.monotonic() + TIME_LIMIT
        while b"\0" not in self._buffer:
            assert select.select([self._in], [], [], deadline - time.monotonic())[0], "the browser does not answer"
            self._buffer += os.read(self._in, 1 << 20)
        text, _, self._buffer = self._buffer.partition(b"\0")
        message = json.loads(text)
        self._note(message.get("method"), message.get("params"))
        return message

    def _note(self, method, parameters):
        self._events.append(method)
        if method == "Runtime.exceptionThrown":
            self.complaints.append(parameters["exceptionDetails"])
        elif method == "Runtime.consoleAPICalled" and parameters["type"] in ("error", "assert"):
            self.complaints.append(parameters["args"])
        elif method == "Log.entryAdded" and parameters["entry"]["level"] == "error":
            self.complaints.append(parameters["entry"])
        elif method == "Network.requestWillBeSent":
            self.requests.append(parameters["request"]["url"])

    def prefer(self, scheme="light", motion="reduce"):
        """What the user wants of pages: light or dark colours; motion, or as little as possible."""
        self.call("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme},
                                                          {"name": "prefers-reduced-motion", "value": motion}])

    def open(self, path, width=1000, height=700, is_phone=False):
        """Loads a file and waits until it is drawn."""
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=is_phone)
        self._events.clear()
        self.call("Page.navigate", url=path.as_uri())
        while "Page.loadEventFired" not in self._events:
            self._receive()
        self.settle()

    def evaluate(self, expression):
        answer = self.call("Runtime.evaluate", expression=expression, awaitPromise=True, returnByValue=True)
        assert "exceptionDetails" not in answer, answer
        return answer["result"].get("value")

    def settle(self, milliseconds=50):
        """Waits so long, and for two frames more."""
        self.evaluate(f"new Promise(done => setTimeout(() => requestAnimationFrame(() => requestAnimationFrame(() => "
                      f"done())), {milliseconds}))")

    def drag(self, start, end):
        for kind, (x, y) in (("mousePressed", start), ("mouseMoved", end), ("mouseReleased", end)):
            self.call("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", buttons=1, clickCount=1)
        self.settle()

    def click(self, place):
        self.drag(place, place)

    def press(self, key):
        for kind in ("keyDown", "keyUp"):
            self.call("Input.dispatchKeyEvent", type=kind, key=key)
        self.settle()

    def picture(self):
        """The page as the bytes of a PNG file."""
        return base64.b64decode(self.call("Page.captureScreenshot", format="png")["data"])
