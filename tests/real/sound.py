# The sounds as a listener at a real sound server hears them. usage: sound.py PROGRAM PLAY_SOUNDS BUILD [--sanitized]

import os
import pathlib
import resource
import shutil
import signal
import sys
import wave

import numpy

from desk import CELLS, ERASER, HELP, PLAY, SANITIZED, START, Desk, limited, room, until

RATE = 22050


# What a file with samples of 8 bits sounds like at RATE, a quarter of a second at most.
def samples(path):
    with wave.open(str(path)) as file:
        values, rate = numpy.frombuffer(file.readframes(1 << 20), numpy.uint8) / 128 - 1, file.getframerate()
    return numpy.interp(numpy.arange(0, (len(values) - 1) / rate, 1 / RATE), numpy.arange(len(values)) / rate, values)[
        :RATE // 4]


class Listener:
    def __init__(self, desk):
        self.desk, self.file, socket = desk, desk.folder / "heard", desk.folder / "native"
        # Without rewinding: what the server would mix anew has been handed to the listener already.
        self.server = desk.start(
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--log-target=null",
            f"--load=module-null-sink sink_name=quiet norewinds=1 channels=1 rate={RATE}",
            f"--load=module-native-protocol-unix auth-anonymous=1 socket={socket}")
        until(socket.exists, "no sound server")
        recorder = ["parec", "--device=quiet.monitor", "--raw", "--format=s16le", "--channels=1", f"--rate={RATE}"]
        desk.start(*recorder, "--latency-msec=20", stdout=self.file.open("w"))
        until(lambda: len(self.heard()), "no listener")

    def heard(self):
        recorded = self.file.read_bytes()
        return numpy.frombuffer(recorded[:len(recorded) // 2 * 2], numpy.int16) / 32768

    # Acts, and waits until this sound, and no other mixed with it, has been heard after `since`; gives its end.
    def hears(self, sound, act, *arguments, since=None):
        since = len(self.heard()) if since is None else since
        result = act(*arguments)

        def end():
            heard = self.heard()[since:]
            if len(heard) < len(sound):
                return None
            start = int(numpy.correlate(heard, sound, "valid").argmax())
            part = heard[start:start + len(sound)]
            alike = part @ sound / numpy.sqrt((part @ part) * (sound @ sound) + 1e-9)
            return alike > 0.9 and since + start + len(sound)
        return until(end, f"{arguments} is not heard")


# One after another, each cutting off the one before, in the end quickly the same ones; then to a hanging server.
def each_sound_as_it_is(listener, program, files):
    player, since = listener.desk.start(program, stdin=-1, stdout=-1, bufsize=1), 0

    def play(name):
        print(name, file=player.stdin)
        return player.stdout.readline()
    assert play("nothing") == "0\n"
    with limited(player, resource.RLIMIT_NOFILE, 3):
        assert SANITIZED or play(":/wave/104.wav") == "0\n", "no files to be had"
    with limited(player, resource.RLIMIT_AS, room(player, 50_000_000)):  # a connection takes 64 megabytes of addresses
        until(lambda: SANITIZED or play(":/wave/104.wav") == "0\n", "no memory to be had")
    for path in files:
        since = listener.hears(samples(path), play, path if path.name == "Space.wav" else f":/wave/{path.name}", since=since)
    for move in (samples(files[3])[:RATE // 12],) * 4:
        since = listener.hears(move, play, ":/wave/104.wav", since=since)
    assert play(files[0]) == "1\n"
    os.kill(listener.server.pid, signal.SIGSTOP)
    for _ in range(200):
        play(":/wave/108.wav")
    player.stdin.close()
    assert player.wait(20) == 0, "a hanging server keeps nobody waiting"
    os.kill(listener.server.pid, signal.SIGCONT)


# The game goes on while the server hangs, and without server and files; then it is heard again.
def game_goes_on(listener, desk, files):
    click = samples(files[10])
    listener.hears(click, desk.click, PLAY)
    erases = desk.turn().card(CELLS[START]) >= ERASER
    listener.hears(samples(files[0 if erases else -1]), desk.lock, 5)
    os.kill(listener.server.pid, signal.SIGSTOP)
    desk.lock(6)
    listener.server.kill()
    listener.server.wait()
    (desk.folder / "native").unlink()
    with limited(desk.game, resource.RLIMIT_NOFILE, len(os.listdir(f"/proc/{desk.game.pid}/fd"))):
        desk.move(8)
        desk.move(9)
    Listener(desk).hears(click, desk.click, HELP)
    desk.leave()


with Desk(sys.argv[1]) as player:
    build, listener = pathlib.Path(sys.argv[3]), Listener(player)
    files = [build / f"assets/wave/{number}.wav" for number in range(101, 113)] + [build / "wav/Space.wav"]
    shutil.copytree(build / "wav", player.home / "wav")
    each_sound_as_it_is(listener, sys.argv[2], files)
    player.play()
    game_goes_on(listener, player, files)
