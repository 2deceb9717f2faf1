"""A headless Chromium that is driven over a pipe, by its DevTools protocol."""

import base64
import json
import os
import subprocess
import tempfile


class Browser:
    def __init__(self, program, width=1280, height=900):
        # The protocol's two ends are the descriptors 3 and 4 of the browser.
        read_by_it, self.to_it = os.pipe()
        self.from_it, written_by_it = os.pipe()
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        arguments = [program, "--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars",
                     "--no-first-run", "--disable-dev-shm-usage", "--disable-background-networking",
                     f"--user-data-dir={self.profile.name}", f"--window-size={width},{height}",
                     "--remote-debugging-pipe", "about:blank"]
        script = f'exec 3<&{read_by_it} 4>&{written_by_it}; exec "$@"'
        self.process = subprocess.Popen(["bash", "-c", script, "browser", *arguments],
                                        pass_fds=(read_by_it, written_by_it),
                                        stderr=subprocess.DEVNULL)
        os.close(read_by_it)
        os.close(written_by_it)
        self.number, self.rest, self.events, self.session = 0, b"", [], None
        targets = self.call("Target.getTargets")["targetInfos"]
        page = next(target for target in targets if target["type"] == "page")
        self.session = self.call("Target.attachToTarget", targetId=page["targetId"],
                                 flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Network", "Log"):
            self.call(domain + ".enable")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(30)
        self.profile.cleanup()

    def receive(self):
        while b"\0" not in self.rest:
            part = os.read(self.from_it, 1 << 16)
            if not part:
                raise RuntimeError("the browser has gone")
            self.rest += part
        message, self.rest = self.rest.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **parameters):
        self.number += 1
        message = {"id": self.number, "method": method, "params": parameters}
        if self.session:
            message["sessionId"] = self.session
        os.write(self.to_it, json.dumps(message).encode() + b"\0")
        while True:
            answer = self.receive()
            if answer.get("id") == self.number:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']}")
                return answer["result"]
            self.events.append(answer)

    def open(self, address):
        self.events.clear()
        self.call("Page.navigate", url=address)
        while not any(event.get("method") == "Page.loadEventFired" for event in self.events):
            self.events.append(self.receive())

    def value(self, expression):
        """What a JavaScript expression gives, promises awaited."""
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True,
                           awaitPromise=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(str(answer["exceptionDetails"]))
        return answer["result"].get("value")

    def move_to(self, selector):
        """Puts the mouse on the middle of an element."""
        place = self.value(f"""(() => {{
            const element = document.querySelector({json.dumps(selector)});
            element.scrollIntoView({{block: "center"}});
            const box = element.getBoundingClientRect();
            return [box.x + box.width / 2, box.y + box.height / 2];
        }})()""")
        self.call("Input.dispatchMouseEvent", type="mouseMoved", x=place[0], y=place[1])
        return place

    def click(self, selector):
        x, y = self.move_to(selector)
        for kind in ("mousePressed", "mouseReleased"):
            self.call("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def press(self, key, code, text=None):
        for kind in ("keyDown", "keyUp"):
            extra = {"text": text} if text and kind == "keyDown" else {}
            self.call("Input.dispatchKeyEvent", type=kind, key=key, code=code, **extra)

    def picture(self, path):
        data = self.call("Page.captureScreenshot", format="png")["data"]
        with open(path, "wb") as file:
            file.write(base64.b64decode(data))

    def requests(self):
        """The addresses that were asked for since the page was opened."""
        return [event["params"]["request"]["url"] for event in self.events
                if event.get("method") == "Network.requestWillBeSent"]

    def complaints(self):
        return [event["params"] for event in self.events
                if event.get("method") in ("Runtime.exceptionThrown", "Log.entryAdded")]
