# A turn in a browser, where there is no screen. usage: browser.py TOOL PROGRAM

import os
import re
import signal
import socket
import subprocess
import sys
from urllib.request import urlopen

import numpy
from desk import START, Desk, Picture
from desktop import CELLS, PLAY, until
from selenium.webdriver import Chrome, ChromeOptions
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

desk = Desk(None)  # keeps the player's own files out of this
served = desk.start(*sys.argv[1:], end=signal.SIGTERM, start_new_session=True, stdout=subprocess.PIPE)
address, port = re.search(r"(http://127.0.0.1:(\d+)/\S+)", served.stdout.readline()).groups()
options = ChromeOptions()
options.binary_location = "/usr/bin/chromium"
for argument in ("--headless=new", "--no-sandbox"):
    options.add_argument(argument)
with Chrome(options=options, service=Service("/usr/bin/chromedriver")) as browser:
    browser.get(address)
    screen = until(lambda: browser.find_elements("css selector", "canvas[width='399']"), "no screen")[0]

    # Waits for what holds of the picture, which may be a little off: it comes as a JPEG.
    def see(holds, what):
        def seen():
            png = urlopen(browser.execute_script("return arguments[0].toDataURL()", screen)).read()
            rgb = subprocess.run(["convert", "png:-", "-depth", "8", "rgb:-"], input=png, capture_output=True).stdout
            return holds(Picture(numpy.frombuffer(rgb, numpy.uint8).reshape(411, 399, 3) & 0xF0))
        until(seen, what)

    def click(place):
        ActionChains(browser).move_to_element_with_offset(screen, place[0] - 199, place[1] - 205).click().perform()

    see(lambda seen: seen.at(5, 200)[2] > 20, "no game")
    click(PLAY)
    see(lambda seen: seen.active() == [START], "no turn")
    ActionChains(browser).send_keys(Keys.RIGHT).perform()
    see(lambda seen: seen.active() == [START + 1], "no key arrives")
    click(CELLS[5])
    see(lambda seen: seen.active() == [START], "no click arrives")
    assert socket.socket().connect_ex(("127.0.0.2", int(port))), "the page is served to others"
    browser.get(address.replace("#", "#wrong"))
    browser.refresh()
    until(lambda: not browser.find_elements("css selector", "canvas"), "any password will do")
served.send_signal(signal.SIGINT)
assert served.wait(20) == 128 + signal.SIGINT
try:
    os.killpg(served.pid, 0)
except ProcessLookupError:
    sys.exit()
sys.exit("something is left running")
