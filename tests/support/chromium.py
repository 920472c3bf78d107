"""A headless Chromium, driven by its own protocol over a pair of pipes."""

import base64
import fcntl
import json
import os
import select
import shutil
import subprocess
import tempfile
import time

PATIENCE = 60  # seconds, for every expected event


class Missing(Exception):
    """No Chromium is installed."""


class Chromium:
    def __init__(self):
        program = next(filter(None, map(shutil.which, ('chromium', 'chromium-browser', 'google-chrome'))), None)
        if not program:
            raise Missing
        self.profile = tempfile.mkdtemp()
        # The browser reads from descriptor 3 and writes to 4; the shell moves the ends there, since they have higher
        # numbers here.
        low = [*os.pipe(), *os.pipe()]
        ends = [fcntl.fcntl(end, fcntl.F_DUPFD_CLOEXEC, 10) for end in low]
        for end in low:
            os.close(end)
        commands, self.sending, self.receiving, answers = ends
        # Its sandbox does not work as root and in many containers.
        arguments = [program, '--headless=new', '--no-sandbox', '--disable-gpu', '--disable-dev-shm-usage',
                     '--no-first-run', '--disable-background-networking', '--disable-component-update',
                     '--disable-extensions', '--force-color-profile=srgb', '--hide-scrollbars',
                     f'--user-data-dir={self.profile}', '--remote-debugging-pipe', 'about:blank']
        script = f'exec "$@" 3<&{commands} 4>&{answers} {commands}<&- {answers}>&-'
        environment = {name: value for name, value in os.environ.items() if not name.startswith('LD_')}
        self.process = subprocess.Popen(['bash', '-c', script, 'bash', *arguments], pass_fds=(commands, answers),
                                        env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        os.close(commands)
        os.close(answers)
        self.number = 0
        self.rest = b''
        self.session = None
        self.noted = []  # messages of the pages' consoles, including errors and blocked contents
        target = self.call('Target.createTarget', url='about:blank')['targetId']
        self.session = self.call('Target.attachToTarget', targetId=target, flatten=True)['sessionId']
        for domain in ('Page', 'Runtime', 'Log'):
            self.call(f'{domain}.enable')

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        os.close(self.sending)
        os.close(self.receiving)
        shutil.rmtree(self.profile, ignore_errors=True)

    def read(self):
        deadline = time.monotonic() + PATIENCE
        while b'\0' not in self.rest:
            ready, _, _ = select.select([self.receiving], [], [], deadline - time.monotonic())
            part = os.read(self.receiving, 1 << 20) if ready else b''
            if not part:
                raise RuntimeError('Chromium does not answer' if not ready else 'Chromium has ended')
            self.rest += part
        message, self.rest = self.rest.split(b'\0', 1)
        return json.loads(message)

    def call(self, method, **parameters):
        self.number += 1
        message = {'id': self.number, 'method': method, 'params': parameters}
        if self.session:
            message['sessionId'] = self.session
        os.write(self.sending, json.dumps(message).encode() + b'\0')
        while True:
            answer = self.read()
            if answer.get('id') == self.number:
                if 'error' in answer:
                    raise RuntimeError(f"{method}: {answer['error']['message']}")
                return answer['result']
            if answer.get('method') in ('Runtime.exceptionThrown', 'Log.entryAdded', 'Runtime.consoleAPICalled'):
                self.noted.append(answer['params'])

    def open(self, address):
        self.call('Page.navigate', url=address)
        self.wait_for(f'document.readyState == "complete" && location.href == {json.dumps(address)}')

    def evaluate(self, expression):
        result = self.call('Runtime.evaluate', expression=expression, awaitPromise=True, returnByValue=True)
        if 'exceptionDetails' in result:
            raise RuntimeError(f"{expression}: {result['exceptionDetails']}")
        return result['result'].get('value')

    def wait_for(self, expression):
        """The value of the expression, once it is true."""
        deadline = time.monotonic() + PATIENCE
        while time.monotonic() < deadline:
            value = self.evaluate(expression)
            if value:
                return value
            time.sleep(0.05)
        raise AssertionError(f'never true: {expression}; the page: {self.evaluate("document.body.innerText")[:3000]}')

    def show_as(self, width, height, scheme='light'):
        self.call('Emulation.setDeviceMetricsOverride', width=width, height=height, deviceScaleFactor=1,
                  mobile=width < 500)
        self.call('Emulation.setEmulatedMedia', features=[{'name': 'prefers-color-scheme', 'value': scheme}])

    def press(self, key, code):
        for kind in ('keyDown', 'keyUp'):
            self.call('Input.dispatchKeyEvent', type=kind, key=key, code=key, windowsVirtualKeyCode=code)

    def screenshot(self, path):
        picture = self.call('Page.captureScreenshot', format='png')['data']
        with open(path, 'wb') as file:
            file.write(base64.b64decode(picture))
