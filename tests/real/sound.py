# The sounds as a listener at a real sound server hears them. usage: sound.py PROGRAM BUILD

import os
import pathlib
import shutil
import signal
import sys
import wave

import numpy

from desk import SCREEN, Desk
from desktop import HELP, MENU, PLAY, until

RATE = 22050


# What a file with samples of 8 bits sounds like at RATE, a quarter of a second at most.
def samples(path):
    with wave.open(str(path)) as file:
        values, rate = numpy.frombuffer(file.readframes(1 << 20), numpy.uint8) / 128 - 1, file.getframerate()
    seconds = numpy.arange(0, (len(values) - 1) / rate, 1 / RATE)[:RATE // 4]
    return numpy.interp(seconds, numpy.arange(len(values)) / rate, values)


class Listener:
    def __init__(self, desk):
        self.file, socket = desk.folder / "heard", desk.folder / "native"
        # Without rewinding: what the server would mix anew has been handed to the listener already.
        self.server = desk.start(
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--log-target=null",
            f"--load=module-null-sink sink_name=quiet norewinds=1 channels=1 rate={RATE}",
            f"--load=module-native-protocol-unix auth-anonymous=1 socket={socket}")
        until(socket.exists, "no sound server")
        recorder = ["parec", "--device=quiet.monitor", "--raw", "--format=s16le", "--channels=1", f"--rate={RATE}"]
        desk.start(*recorder, "--latency-msec=20", stdout=self.file.open("w"))
        until(lambda: self.heard().size, "no listener")

    def heard(self):
        return numpy.fromfile(self.file, numpy.int16) / 32768

    # Acts, and waits until the sound of a file, and no other mixed with it, has been heard.
    def hears(self, path, act, *arguments):
        sound, since = samples(path), self.heard().size
        act(*arguments)

        def is_heard():
            heard = self.heard()[since:]
            if heard.size < sound.size:
                return False
            power = numpy.convolve(heard ** 2, numpy.ones(sound.size), "valid") * (sound @ sound)
            return (numpy.correlate(heard, sound, "valid") / numpy.sqrt(power + 1e-9)).max() > 0.9
        until(is_heard, f"{path} is not heard")


desk, build = Desk(sys.argv[1]), pathlib.Path(sys.argv[2])
waves = [build / f"assets/wave/{number}.wav" for number in range(101, 113)]
(desk.home / "wav").mkdir()
listener = Listener(desk)
desk.play()
listener.hears(waves[10], desk.click, PLAY)
desk.turn()
while desk.look().board().count(None) == 15:  # an eraser leaves no card
    desk.lock(5)
listener.hears(waves[3], desk.do, "key", "Up")

# Each in place of the sound of a lock. To cover the board plays that for each cell, each time cutting off the one
# before; to go on plays it for each card.
for path in (*waves, build / "wav/Space.wav"):
    shutil.copy(path, desk.home / "wav/Space.wav")
    listener.hears(path, desk.do, "key", "p")
    desk.see(lambda seen: seen.is_covered(), "no pause")
    listener.hears(path, desk.do, "key", "p")

# The game goes on while the server hangs and when it is gone; then it is heard again, and ends at once.
os.kill(listener.server.pid, signal.SIGSTOP)
desk.lock(6)
listener.server.kill()
listener.server.wait()
(desk.folder / "native").unlink()
desk.move(8)
listener = Listener(desk)
listener.hears(waves[10], desk.click, HELP)
os.kill(listener.server.pid, signal.SIGSTOP)
desk.changes(desk.click, MENU, part=SCREEN)
desk.leave()
