"""Who manages the windows of a virtual desktop: a window manager on X11, or a Wayland compositor.

Each is made for a Desktop, starts its program, which makes the file "ready" once it is, and then answers in the same
words. Places are in logical pixels."""
import json
import os
import re
import signal
import subprocess


class Openbox:
    """On X11 programs scale themselves."""
    RUN = []

    def __init__(self, desktop):
        self.do, self.scale = desktop.do, desktop.scale
        os.environ |= {"QT_QPA_PLATFORM": "xcb", "GDK_BACKEND": "x11", "QT_SCALE_FACTOR": str(desktop.scale)}
        # Without mouse bindings: the window manager would delay every click to check for one.
        config = desktop.folder / "rc.xml"
        config.write_text('<openbox_config xmlns="http://openbox.org/3.4/rc"><mouse/></openbox_config>')
        desktop.start("openbox", "--sm-disable", "--config-file", config, "--startup", f"touch {desktop.folder}/ready")

    def shown(self, title):
        """The ids of the windows that are visible and have this title."""
        return set(self.do("search", "--onlyvisible", "--name", f"^{title}$").split())

    def of(self, entry):
        """The ids of the windows by which a desktop knows the program of this desktop entry."""
        name = re.search("^StartupWMClass=(.*)$", entry.read_text(), re.M)[1]
        return set(self.do("search", "--class", f"^{name}$").split())

    def where(self, window):
        """Where the window is; only good for comparison."""
        return self.do("getwindowgeometry", window)

    def move(self, window, x, y):
        self.do("windowmove", window, x * self.scale, y * self.scale)

    def focus(self, window):
        self.do("windowfocus", window)


class Sway:
    """A compositor whose screen, mouse and keyboard are those of the X server, of which its programs know nothing. It
    sets their scale."""
    RUN = ["env", "-u", "DISPLAY"]

    def __init__(self, desktop):
        config = desktop.folder / "sway.conf"
        os.environ |= {"QT_QPA_PLATFORM": "wayland", "GDK_BACKEND": "wayland", "QT_SCALE_FACTOR": "1",
                       "WAYLAND_DISPLAY": "wayland-1", "XDG_CURRENT_DESKTOP": "sway", "WLR_BACKENDS": "x11",
                       "WLR_RENDERER": "pixman", "SWAYSOCK": str(desktop.folder / "sway.sock")}
        config.write_text(f"""
            output * mode {desktop.WIDTH}x{desktop.HEIGHT} scale {desktop.scale} scale_filter nearest
            for_window [title=".*"] floating enable
            default_floating_border none
            focus_follows_mouse no
            input * repeat_rate 0
            xwayland disable
            exec touch {desktop.folder}/ready""")
        # Some versions refuse to run as root.
        as_nobody = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--inh-caps=+dac_override",
                     "--ambient-caps=+dac_override"] if os.geteuid() == 0 else []
        desktop.start(*as_nobody, "sway", "--config", config, end=signal.SIGTERM, stderr=subprocess.DEVNULL)

    def message(self, *words):
        return json.loads(subprocess.run(["swaymsg", "--raw", *map(str, words)], capture_output=True).stdout)

    def tree(self, node=None):
        node = node or self.message("--type", "get_tree")
        return [node] + [each for child in node["nodes"] + node["floating_nodes"] for each in self.tree(child)]

    def shown(self, title):
        return {node["id"] for node in self.tree() if node["name"] == title and node.get("visible")}

    def of(self, entry):
        return {node["id"] for node in self.tree() if node.get("app_id") == entry.stem}

    def where(self, window):
        return next(node["rect"] for node in self.tree() if node["id"] == window)

    def move(self, window, x, y):
        self.message(f"[con_id={window}]", "move", "position", x, y)

    def focus(self, window):
        self.message(f"[con_id={window}]", "focus")
