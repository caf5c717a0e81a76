"""What the tests in a browser share: the browser, the server of the program, and waiting for what is to come.

Where everything is comes from the environment, as CMakeLists.txt sets it. What a page shows is read by tests
themselves; nothing here knows a page.
"""

import contextlib
import json
import os
import pathlib
import select
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

SKIPPED = 77
SIZES = ((390, 844), (1024, 768), (1920, 1080))
LANGUAGES = ("en", "fr")
PATIENCE = 20  # seconds, for a machine that has much else to do
SANITIZERS = ("AddressSanitizer", "runtime error", "LeakSanitizer")


def skip(reason):
    """The whole file is no test here."""
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)


def setting(name):
    value = os.environ.get(name, "")
    if not value:
        skip(f"{name} is not set; ctest sets it")
    return value


def tool(*names):
    """The first of these programs that there is."""
    for name in names:
        found = shutil.which(name, path=os.environ.get("PATH", "") + ":/usr/sbin:/sbin")
        if found:
            return found
    return skip(f"{names[0]} is missing")


try:
    from selenium import webdriver
    from selenium.webdriver.chrome.service import Service
    from selenium.webdriver.common.by import By
except ImportError:
    skip("python3-selenium is missing")


def wait_until(what, holds, seconds=PATIENCE):
    """Asks until it holds, and gives what it then was. `what` says what was waited for in vain."""
    end = time.monotonic() + seconds
    while True:
        found = holds()
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"waited {seconds} s in vain: {what() if callable(what) else what}")
        time.sleep(0.02)


def wait_until_same(case, wanted, shown, seconds=PATIENCE):
    """Asks `shown` until it gives `wanted`; what is different then is the failure."""
    end = time.monotonic() + seconds
    while True:
        found = shown()
        if found == wanted:
            return
        if time.monotonic() > end:
            case.assertEqual(wanted, found)
        time.sleep(0.02)


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def answers(port):
    with contextlib.suppress(OSError), socket.create_connection(("127.0.0.1", port), 1):
        return True
    return False


def box(path):
    """The game as the command line counts it: what every page is held against."""
    run = subprocess.run([setting("HOOPTAB_CLI"), "box", "--json", str(path)], capture_output=True, check=True)
    return json.loads(run.stdout)


def samples():
    found = sorted(pathlib.Path(setting("HOOPTAB_SAMPLES")).glob("*.GAM"))
    return found or skip("there are no sample games")


class Server:
    """`hooptab-cli serve` of files or of a folder, until it is stopped."""

    def __init__(self, *paths, port=0, options=()):
        self.command = [setting("HOOPTAB_CLI"), "serve", *map(str, paths), "--lang", "en", *options]
        self.port = port
        self.process = None
        self.start()

    @property
    def address(self):
        return f"http://127.0.0.1:{self.port}"

    def start(self):
        """At the same port, where it was started before."""
        self.errors = tempfile.TemporaryFile("w+")
        self.process = subprocess.Popen([*self.command, "--port", str(self.port or free_port())],
                                        stdout=subprocess.PIPE, stderr=self.errors, text=True)
        readable, _, _ = select.select([self.process.stdout], [], [], PATIENCE)
        line = self.process.stdout.readline() if readable else ""
        if "http://" not in line:
            said = self.said()
            self.kill()
            raise AssertionError(f"the server does not begin: {line}{said}")
        self.port = int(line.rstrip().rstrip("/").rsplit(":", 1)[1])

    def said(self):
        self.errors.seek(0)
        return self.errors.read()

    def hold(self):
        """As if the network had gone: connections stay, and nothing comes."""
        self.process.send_signal(signal.SIGSTOP)

    def go_on(self):
        self.process.send_signal(signal.SIGCONT)

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()
        self.errors.close()

    def stop(self):
        if self.process.poll() is not None:
            return
        self.go_on()
        self.process.terminate()
        try:
            self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            self.kill()
            raise AssertionError("the server does not end when it is asked to")
        self.process.stdout.close()
        said = self.said()
        self.errors.close()
        if any(word in said for word in SANITIZERS):
            raise AssertionError(said)


# Put into each page before its own scripts: which words the program does not have, and what went wrong.
WATCH = """
window.missingWords = [];
window.faults = [];
addEventListener('error', (event) => window.faults.push(String(event.message ?? event)));
addEventListener('unhandledrejection', (event) => window.faults.push(String(event.reason)));
addEventListener('securitypolicyviolation', (event) => window.faults.push('policy: ' + event.violatedDirective));
const json = Response.prototype.json;
Response.prototype.json = async function () {
  const value = await json.call(this);
  if (!new URL(this.url).pathname.startsWith('/words/'))
    return value;
  return new Proxy(value, { get(words, name) {
    if (typeof name === 'string' && name !== 'then' && !(name in words))
      window.missingWords.push(name);
    return words[name];
  } });
};
"""


class Browser:
    """Chromium without a screen. Each page stands in a window of its own, so that none sleeps in the background."""

    def __init__(self, options=(), keeps_pages=False):
        """`keeps_pages`: as browsers do, so that going back shows a page at once; it may hold on to connections."""
        self.folder = tempfile.TemporaryDirectory(prefix="hooptab-browser-")
        choice = webdriver.ChromeOptions()
        choice.binary_location = tool("chromium", "chromium-browser", "google-chrome")
        words = ["--headless=new", f"--user-data-dir={self.folder.name}", "--force-device-scale-factor=1",
                 "--disable-dev-shm-usage", "--disable-gpu", "--no-first-run", "--disable-background-networking",
                 "--disable-background-timer-throttling", "--disable-renderer-backgrounding",
                 "--disable-backgrounding-occluded-windows", "--hide-scrollbars", *options]
        if not keeps_pages:
            words.append("--disable-features=BackForwardCache")
        if os.geteuid() == 0:
            words.append("--no-sandbox")  # which a browser of root cannot have
        for word in words:
            choice.add_argument(word)
        choice.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        self.driver = webdriver.Chrome(options=choice, service=Service(tool("chromedriver")))
        self.driver.set_page_load_timeout(PATIENCE)
        self.driver.set_script_timeout(PATIENCE)
        self.watch()

    def watch(self):
        self.driver.execute_cdp_cmd("Page.enable", {})
        self.driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": WATCH})

    def open(self, address, ready=None, size=None):
        if size:
            self.resize(size)
        self.driver.get_log("browser")  # what is said from now on is of this page
        self.driver.get(address)
        if ready:
            self.wait_for(ready)

    def open_window(self, address, ready=None, size=None):
        """In a window of its own, which can be come back to."""
        self.driver.switch_to.new_window("window")
        self.watch()
        self.open(address, ready, size)
        return self.driver.current_window_handle

    def switch(self, window):
        self.driver.switch_to.window(window)

    def resize(self, size):
        width, height = size
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": height, "deviceScaleFactor": 1, "mobile": False})

    def wait_for(self, selector):
        wait_until(lambda: f"{selector} at {self.driver.current_url}; there is: {self.text()[:300]!r}",
                   lambda: self.all(selector))

    def run(self, script, *values):
        return self.driver.execute_script(script, *values)

    def all(self, selector):
        return self.driver.find_elements(By.CSS_SELECTOR, selector)

    def click(self, selector):
        self.wait_for(selector)
        self.run("document.querySelector(arguments[0]).click()", selector)

    def texts(self, selector):
        """At one moment: the page may be drawn anew at the next."""
        return self.run("return [...document.querySelectorAll(arguments[0])].map((node) =>"
                        " node.textContent.trim().replace(/\\s+/g, ' '))", selector)

    def text(self):
        return self.run("return document.body ? document.body.innerText : ''")

    def complaints(self):
        """What the page, its policy or the network has complained of since it was opened, or the last call."""
        said = [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] == "SEVERE"]
        return said + self.run("return window.faults ?? []")

    def close(self):
        self.driver.quit()
        self.folder.cleanup()


class BrowserCase(unittest.TestCase):
    """Tests that have one browser, and a folder of their own that is gone behind them."""

    browser_options = ()

    @classmethod
    def setUpClass(cls):
        cls.browser = Browser(cls.browser_options)
        cls.addClassCleanup(cls.browser.close)
        folder = tempfile.TemporaryDirectory(prefix="hooptab-pages-")
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)

    def serve(self, *paths, **words):
        server = Server(*paths, **words)
        self.addCleanup(server.stop)
        return server
