"""A real browser without a window, worked through the Chrome DevTools Protocol over a pipe."""
import json
import os
import subprocess

COMMAND = ("exec chromium --headless --no-sandbox --disable-gpu --remote-debugging-pipe"
           " --window-size=800,600 --user-data-dir=%s 3<&%d 4>&%d 2>/dev/null")
KEY_CODES = {"Tab": 9, "Enter": 13, " ": 32}


class Browser:
    """One page in a browser of its own, which keeps its profile in the folder `profile`."""

    def __init__(self, profile):
        (theirs_in, self.requests), (replies, theirs_out) = os.pipe(), os.pipe()
        self.process = subprocess.Popen(["sh", "-c", COMMAND % (profile, theirs_in, theirs_out)],
                                        pass_fds=(theirs_in, theirs_out))
        os.close(theirs_out)
        self.replies = os.fdopen(replies, "rb")
        self.calls, self.session, self.complaints, self.loaded = 0, {}, [], False
        target = self.call("Target.createTarget", url="about:blank")
        page = self.call("Target.attachToTarget", targetId=target["targetId"], flatten=True)
        self.session = {"sessionId": page["sessionId"]}
        for domain in ("Page", "Runtime", "Log"):
            self.call(domain + ".enable")

    def receive(self):
        message = b""
        while not message.endswith(b"\0"):
            message += self.replies.read(1) or exit("The browser has gone.")
        message = json.loads(message[:-1])
        event = message.get("method")
        if event in ("Log.entryAdded", "Runtime.exceptionThrown", "Runtime.consoleAPICalled"):
            self.complaints.append(json.dumps(message["params"]))
        self.loaded = self.loaded or event == "Page.loadEventFired"
        return message

    def call(self, method, **params):
        self.calls += 1
        request = {"id": self.calls, "method": method, "params": params, **self.session}
        os.write(self.requests, json.dumps(request).encode() + b"\0")
        while (reply := self.receive()).get("id") != self.calls:
            pass
        return reply["result"]

    def open(self, path):
        self.call("Page.navigate", url="file://" + path)
        self.wait_for_page()

    def wait_for_page(self):
        while not self.loaded:
            self.receive()
        self.loaded = False

    def value(self, script):
        """What the script gives on the page, once a promise is kept."""
        return self.call("Runtime.evaluate", expression=script, returnByValue=True,
                         awaitPromise=True)["result"].get("value")

    def click(self, selector):
        """Clicks on the middle of the first element that the selector finds."""
        x, y = self.value("(r => [r.x + r.width / 2, r.y + r.height / 2])"
                          "(document.querySelector('%s').getBoundingClientRect())" % selector)
        for kind in ("mouseMoved", "mousePressed", "mouseReleased"):
            self.call("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def press(self, key):
        code = KEY_CODES[key]
        for kind, text in (("keyDown", "" if key == "Tab" else chr(code)), ("keyUp", "")):
            self.call("Input.dispatchKeyEvent", type=kind, key=key, windowsVirtualKeyCode=code,
                      text=text)
