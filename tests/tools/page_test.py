#!/usr/bin/env python3
"""usage: page_test.py COMMAND TORUS REFUSED [PICTURES]    The page of "zelvane monitor --web" in a headless Chromium,
beside two running programs and one that is refused. Exit status 77 where no Chromium is installed. PICTURES: a
directory for screenshots, which are for people."""

import http.client
import json
import os
import re
import subprocess
import sys
import tempfile
import time
import urllib.request

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../support'))
from chromium import Chromium, Missing  # noqa: E402
from page_world import ERROR, INFO, TITLE, WARNING, Application, World, memory_of, record, until  # noqa: E402

NOBODY = 2000000001  # no process has such a high number
HOSTILE = '<img src=x onerror="window.isHit=1"><script>window.isHit=1</script>'
# Contexts lack much of what OpenGL ES 3 requires.
LESSER_HOST = {'MESA_GL_VERSION_OVERRIDE': '3.2', 'MESA_EXTENSION_OVERRIDE': '-GL_ARB_ES3_compatibility -GL_ARB_sync '
               '-GL_ARB_sampler_objects -GL_ARB_texture_swizzle -GL_ARB_transform_feedback2'}
IS_SANITIZED = 'ZELVANE_SANITIZED' in os.environ


def status_of(port, path, method='GET', **headers):
    connection = http.client.HTTPConnection('127.0.0.1', port, timeout=60)
    connection.request(method, path, body='{}' if method == 'POST' else None, headers=headers)
    answer = connection.getresponse()
    return answer.status, answer.headers


def who_may_look(monitor):
    host = f'127.0.0.1:{monitor.port}'
    path = monitor.address.removeprefix('http://' + host)
    wrong = '/' + path[1:-2] + ('0' if path[-2] != '0' else '1') + '/'
    rows = [
        (200, 'GET', path, {}),
        (403, 'GET', '/', {}),
        (403, 'GET', wrong, {}),
        (403, 'GET', wrong + 'log', {}),
        (403, 'GET', path[:-1], {}),
        (403, 'GET', '/..' + path, {}),
        (403, 'GET', path, {'Host': 'evil.example'}),
        (403, 'GET', path, {'Host': f'localhost:{monitor.port}'}),
        (403, 'GET', path + 'events', {'Origin': 'http://evil.example'}),
        (403, 'GET', path + 'log', {'Origin': 'null'}),
        (403, 'POST', path + 'commands', {}),
        (403, 'POST', path + 'commands', {'Origin': f'https://{host}'}),
        (400, 'POST', path + 'commands', {'Origin': f'http://{host}'}),
        (404, 'GET', path + 'other', {}),
    ]
    for wanted, method, place, more in rows:
        status, headers = status_of(monitor.port, place, method, **more)
        assert status == wanted, (wanted, status, method, place, more)
        assert "default-src 'none'" in headers['Content-Security-Policy'], place
        assert 'Access-Control-Allow-Origin' not in headers
    with open('/proc/net/tcp') as file:
        listeners = re.findall(rf' (\w+):{monitor.port:04X} 00000000:0000 0A', file.read())
    assert listeners == ['0100007F'], listeners


def a_busy_port_is_told(world, monitor):
    second = subprocess.run([world.command, 'monitor', '--web', str(monitor.port)], env=world.environment,
                            capture_output=True, text=True, stdin=subprocess.DEVNULL)
    assert second.returncode == 1
    told = re.search(rf'port {monitor.port} of 127.0.0.1 is taken; the next free one is (\d+)', second.stderr)
    assert told and int(told[1]) > monitor.port, second.stderr


def open_starts_a_browser(world):
    """Other users see the arguments of a process: the token must not be among them."""
    told = os.path.join(world.directory, 'told')
    opener = os.path.join(world.directory, 'xdg-open')
    with open(opener, 'w') as file:
        file.write(f'#!/bin/sh\necho "$@" >{told}.part; cat "$1" >>{told}.part; mv {told}.part {told}\n')
    os.chmod(opener, 0o755)
    path = world.directory + ':' + os.environ['PATH']
    monitor = world.monitor('--web', '0', '--open', env=dict(world.environment, PATH=path))
    until('the browser', lambda: os.path.exists(told))
    words, content = open(told).read().split('\n', 1)
    assert monitor.address in content and monitor.address.split('/')[3] not in words, (words, content)
    monitor.terminate()
    assert monitor.wait() == 0 and not os.path.exists(words)


class Page:
    def __init__(self, browser):
        self.evaluate, self.wait_for, self.browser = browser.evaluate, browser.wait_for, browser
        self.known = set()

    def card(self, pid):
        return f'[...document.querySelectorAll(".card")].find(card => card.querySelector(".pid").textContent == {pid})'

    def wait_for_card(self, pid, condition):
        return self.wait_for(f'(card => card && ({condition}))({self.card(pid)})')

    def pid_of_next(self, name):
        """The process number of the next application of that name."""
        pid = self.wait_for('''[...document.querySelectorAll(".card")]
            .filter(card => card.querySelector("h3").textContent == %s)
            .map(card => Number(card.querySelector(".pid").textContent))
            .find(pid => !%s.includes(pid))''' % (json.dumps(name), list(self.known)))
        self.known.add(pid)
        return pid

    def shown(self):
        """The texts of the visible log lines."""
        return self.evaluate('Array.from(document.querySelectorAll(".line:not([hidden]) .text"), text => text.innerText)')

    def wait_for_lines(self, *texts):
        until(f'lines {texts}', lambda: self.shown() == list(texts))

    def click(self, selector):
        self.evaluate(f'document.querySelector({json.dumps(selector)}).click()')

    def wait_for_text(self, selector, text):
        self.wait_for(f'document.querySelector({json.dumps(selector)})?.textContent.includes({json.dumps(text)})')


def curves_move(page, pid):
    page.wait_for_card(pid, 'card.querySelector(".rate strong").textContent > 0')
    path = page.evaluate(f'{page.card(pid)}.querySelector(".curve").getAttribute("d")')
    page.wait_for_card(pid, f'card.querySelector(".curve").getAttribute("d").length > {len(path)}')
    page.wait_for_card(pid, '/lowest \\d+/.test(card.querySelector(".lowest").textContent)')


def wireframe_switches(world, page, pid):
    until('a picture', lambda: world.lit_pixels() > 10000)
    filled = world.lit_pixels()
    page.evaluate(f'{page.card(pid)}.querySelector(".wireframe").click()')
    until('the wireframe', lambda: world.lit_pixels() < 0.7 * filled)
    page.wait_for_card(pid, 'card.querySelector(".wireframe").getAttribute("aria-pressed") == "true"')
    page.click('#wireframe-all')
    until('the faces', lambda: world.lit_pixels() > 0.8 * filled)


def typed_commands_hold_beside_it(monitor, page, pid, other):
    monitor.stdin.write(f'w {pid}\n')
    monitor.stdin.flush()
    page.wait_for_card(pid, 'card.querySelector(".wireframe").getAttribute("aria-pressed") == "true"')
    page.wait_for_card(other, 'card.querySelector(".wireframe").getAttribute("aria-pressed") == "false"')
    page.wait_for_text('#notice', 'sent to 1 application')


def refusals_stand_at_the_top(page, pid):
    page.wait_for_text('#refusals li', f'refused {pid}')
    page.wait_for_text('#refusals li', 'could not be created')
    page.wait_for_text('#refusals .missing', 'The host lacks: ')
    page.click('#refusals button')
    assert page.evaluate('document.querySelector("#report").open')
    row = page.evaluate('document.querySelector("#report tbody tr.missing").innerText')
    assert '✕ missing' in row and 'OpenGL ES 3.0' in row, row
    counts = page.evaluate('''[true, false].map(isBrief => {
        const box = document.querySelector("#report-missing");
        if (box.checked != isBrief) box.click();
        return document.querySelectorAll("#report tbody tr").length; })''')
    assert 0 < counts[0] < counts[1], counts
    page.browser.press('Escape', 27)
    page.wait_for('!document.querySelector("#report").open')


def text_is_only_text(page, application):
    application.say(TITLE, HOSTILE)
    application.say(INFO, HOSTILE)
    application.send(record(ERROR, b'cut \xc3\xff'))
    page.wait_for_card(NOBODY, f'card.querySelector(".title").textContent === {json.dumps(HOSTILE)}')
    until('both lines', lambda: page.shown()[-2:] == [HOSTILE, 'cut \ufffd\ufffd'])
    assert page.evaluate('window.isHit === undefined && !document.querySelector("main img")')


def the_filter_filters(page, application):
    page.evaluate(f'{page.card(NOBODY)}.querySelector(".show-log").click()')
    application.say(WARNING, 'Three')
    page.wait_for_lines(HOSTILE, 'cut \ufffd\ufffd', 'Three')
    page.click('input[value=log_info]')
    page.wait_for_lines('cut \ufffd\ufffd', 'Three')
    page.evaluate('search.value = "thr"; search.dispatchEvent(new Event("input"))')
    page.wait_for_lines('Three')
    page.click('#pause')
    application.say(ERROR, 'three again')
    page.wait_for_text('#pause', 'Resume (1 new)')
    assert page.shown() == ['Three']
    page.click('#pause')
    page.wait_for_lines('Three', 'three again')
    # With the keyboard only.
    page.evaluate('document.querySelector("#log-lines").focus()')
    for _ in range(2):
        page.browser.press('ArrowUp', 38)
    page.wait_for('document.querySelector("#log-line").textContent == "Three"')
    page.evaluate('search.value = ""; search.dispatchEvent(new Event("input"))')
    page.click('input[value=log_info]')


def what_is_saved_is_json(page):
    log = page.evaluate('fetch(document.querySelector("#save-log").href).then(answer => answer.text())')
    lines = [json.loads(line) for line in log.splitlines()]
    assert {line['type'] for line in lines} == {'log_info', 'log_warning', 'log_error'}, lines
    assert {'time', 'pid', 'command', 'type', 'text'} <= set(lines[-1])
    records = page.evaluate('fetch(document.querySelector("#save-records").href).then(answer => answer.text())')
    types = {json.loads(line)['type'] for line in records.splitlines()}
    assert {'process_hello', 'back_end_marker', 'system_report_end', 'window_title', 'log_error'} <= types, types


def the_ended_stay_until_cleared(page, application):
    application.close()
    page.wait_for_card(NOBODY, 'card.classList.contains("ended") && card.querySelector(".wireframe").disabled')
    assert page.evaluate(f'{page.card(NOBODY)}.querySelector(".title").textContent') == HOSTILE
    page.click('#clear')
    page.wait_for(f'!{page.card(NOBODY)}')
    page.wait_for('!document.querySelector(".line:not([hidden])") && !document.querySelector("#refusals li")')


def everything_has_a_name(page):
    nodes = page.browser.call('Accessibility.getFullAXTree')['nodes']
    known = [(node['role']['value'], node.get('name', {}).get('value', '')) for node in nodes if 'role' in node]
    assert {'banner', 'main', 'region', 'alert', 'status'} <= {role for role, _ in known}, known
    named = {'button', 'link', 'checkbox', 'combobox', 'searchbox', 'listbox', 'image', 'region'}
    assert not [role for role, name in known if role in named and not name]


def looks(page, pictures):
    for name, width, height, scheme in (('light', 1280, 1000, 'light'), ('dark', 1280, 1000, 'dark'),
                                        ('phone', 390, 844, 'light')):
        page.browser.show_as(width, height, scheme)
        assert page.evaluate('document.documentElement.scrollWidth <= innerWidth'), name
        if pictures:
            page.browser.screenshot(os.path.join(pictures, f'monitor-{name}.png'))
    page.browser.show_as(1280, 1000)


def a_flood_leaves_it_usable(world, monitor, page):
    before = memory_of(monitor)
    application = Application(world.directory, NOBODY)
    slowest = 0
    started = time.monotonic()
    for tenth in range(100):
        numbers = range(1000 * tenth, 1000 * tenth + 1000)
        application.send(*(record(INFO, b'line %d of the flood' % number) for number in numbers))
        asked = time.monotonic()
        page.evaluate('document.querySelectorAll(".line").length')
        slowest = max(slowest, time.monotonic() - asked)
        time.sleep(max(0, started + (tenth + 1) / 10 - time.monotonic()))
    seconds = time.monotonic() - started
    until('the last line', lambda: page.shown()[-1:] == ['line 99999 of the flood'])
    page.click('#pause')
    page.wait_for_text('#pause', 'Resume')
    page.click('#pause')
    kept = page.evaluate('parseInt(document.querySelector("#log-count").textContent)')
    grown = memory_of(monitor) - before
    print(f'flood: 100000 records in {seconds:.1f} s; the page answered in {slowest:.2f} s at the latest and keeps '
          f'{kept} lines; the command grew by {grown:.0f} MB, to {memory_of(monitor):.0f} MB')
    assert kept == 10000
    assert IS_SANITIZED or grown < 100
    application.close()


def first_event(monitor, last_id=None):
    address = monitor.address + 'events'
    request = urllib.request.Request(address, headers={'Last-Event-ID': last_id} if last_id else {})
    with urllib.request.urlopen(request, timeout=60) as stream:
        lines = {}
        for line in stream:
            name, _, value = line.decode().rstrip('\n').partition(': ')
            lines[name] = value
            if name == 'data':
                return lines['id'], json.loads(value)


def a_lost_stream_goes_on_where_it_was(world, monitor):
    """A browser that reconnects sends the id of the last event."""
    known, whole = first_event(monitor)
    application = Application(world.directory, NOBODY + 1)
    application.say(WARNING, 'meanwhile')
    while 'log' not in (update := first_event(monitor, known)[1]):
        pass
    assert whole['isWhole'] and len(whole['applications']) == 3 and 'isWhole' not in update, update
    assert [line['text'] for line in update['log']] == ['meanwhile'], update
    assert {shown['pid'] for shown in update['applications']} == {NOBODY + 1}, update
    application.close()


def its_end_and_return_are_told(world, monitor, page):
    monitor.terminate()
    assert monitor.wait() == 0
    page.wait_for_text('#trouble', 'has ended')
    world.monitor('--web', str(monitor.port))
    page.wait_for_text('#trouble', 'new address')


def main():
    command, torus, refused_program, *pictures = sys.argv[1:]
    try:
        browser = Chromium()
    except Missing:
        print('skipped: no Chromium is installed')
        return 77
    with tempfile.TemporaryDirectory() as directory, World(command, directory) as world, browser:
        open_starts_a_browser(world)
        monitor = world.monitor('--web', '0')
        who_may_look(monitor)
        a_busy_port_is_told(world, monitor)
        page = Page(browser)
        browser.show_as(1280, 1000)
        browser.open(monitor.address)
        page.wait_for('document.querySelector("#no-applications").checkVisibility()')
        world.run('--profile', 'Google Nexus Player', torus, '--samples', '0', '--frames', '1000000')
        first = page.pid_of_next('torus')
        page.wait_for_card(first, 'card.querySelector(".device").textContent == "Google Nexus Player"')
        page.wait_for_card(first, 'card.querySelector(".title").textContent == "Zelvane: torus"')
        curves_move(page, first)
        wireframe_switches(world, page, first)
        world.run(torus, '--samples', '0', '--frames', '1000000')
        second = page.pid_of_next('torus')
        curves_move(page, second)
        typed_commands_hold_beside_it(monitor, page, first, second)
        world.run('--strict', refused_program, **LESSER_HOST)
        refusals_stand_at_the_top(page, page.pid_of_next('refused'))
        application = Application(directory, NOBODY)
        text_is_only_text(page, application)
        the_filter_filters(page, application)
        everything_has_a_name(page)
        looks(page, pictures[0] if pictures else None)
        what_is_saved_is_json(page)
        the_ended_stay_until_cleared(page, application)
        a_lost_stream_goes_on_where_it_was(world, monitor)
        a_flood_leaves_it_usable(world, monitor, page)
        its_end_and_return_are_told(world, monitor, page)
        # Excludes the expected errors of the ended monitor and of the new one that rejects the old address.
        unexpected = [note for note in map(json.dumps, browser.noted) if 'net::ERR' not in note and '403' not in note]
        assert not unexpected, unexpected
    return 0


if __name__ == '__main__':
    sys.exit(main())
