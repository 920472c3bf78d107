"""What the page of the monitor is tried on: an X server, the monitor, programs, and applications of the test's own."""

import collections
import contextlib
import os
import re
import socket
import struct
import subprocess
import time

RECORD_SIZE = 8240
NO_FRAME = 2**64 - 1
HELLO, TITLE, INFO, WARNING, ERROR = 0, 2, 6, 7, 8


def record(kind, payload, frame=NO_FRAME):
    return (struct.pack('=QI', frame, kind) + payload).ljust(RECORD_SIZE, b'\0')


class Application:
    """A scripted application."""

    def __init__(self, directory, pid):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(os.path.join(directory, 'Zelvane'))
        self.send(record(HELLO, struct.pack('=i', pid)))

    def send(self, *records):
        self.socket.sendall(b''.join(records))

    def say(self, kind, text):
        self.send(record(kind, text.encode()))

    def close(self):
        self.socket.close()


class World(contextlib.ExitStack):
    def __init__(self, command, directory):
        super().__init__()
        self.command, self.directory = command, directory
        self.environment = dict(os.environ, HOME=directory, TMPDIR=directory, ASAN_OPTIONS='detect_leaks=0')
        for name in ('ZELVANE_PROFILE_PATH', 'KZRTRACE_LIB_PATH', 'WAYLAND_DISPLAY'):
            self.environment.pop(name, None)
        read, write = os.pipe()
        self.start(['Xvfb', '-displayfd', str(write), '-fbdir', directory, '-screen', '0', '1024x768x24', '-noreset',
                    '-nolisten', 'tcp'], pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.environment['DISPLAY'] = ':' + number.readline().strip()

    def start(self, words, **options):
        process = subprocess.Popen(words, env=options.pop('env', self.environment), **options)

        # "zelvane run" forwards the signal to its program.
        def end():
            process.terminate()
            try:
                process.wait(20)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self.callback(end)
        return process

    def monitor(self, *options, **more):
        """A running monitor with the address of its page."""
        monitor = self.start([self.command, 'monitor', *options], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                             text=True, **more)
        monitor.address = None
        for line in monitor.stdout:
            monitor.address = monitor.address or (re.match(r'page at (\S+)', line) or [None, None])[1]
            if line.startswith('listening'):
                break
        monitor.port = int(re.search(r':(\d+)/', monitor.address)[1])
        # Reads the rest, since a full pipe would block the monitor.
        self.start(['cat'], stdin=monitor.stdout, stdout=subprocess.DEVNULL)
        return monitor

    def run(self, *words, **environment):
        return self.start([self.command, 'run', *words], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          env=dict(self.environment, **environment))

    def lit_pixels(self):
        """The number of pixels on the screen that differ from the most frequent colour."""
        with open(os.path.join(self.directory, 'Xvfb_screen0'), 'rb') as file:
            picture = file.read()
        header = struct.unpack('>20I', picture[:80])
        start, row_size = header[0] + 12 * header[19], header[12]
        pixels = b''.join(picture[start + row * row_size:][:4 * 640] for row in range(480))
        colours = collections.Counter(struct.iter_unpack('I', pixels))
        return colours.total() - max(colours.values())


def until(what, condition):
    deadline = time.monotonic() + 60
    while not condition():
        assert time.monotonic() < deadline, 'never came: ' + what
        time.sleep(0.05)


def memory_of(process):
    """Its peak memory in megabytes."""
    with open(f'/proc/{process.pid}/status') as file:
        return int(re.search(r'VmHWM:\s+(\d+)', file.read())[1]) / 1024
