#!/usr/bin/env python3
"""usage: capture_test.py COMMAND LINKED OPENING    Captures the system's EGL and each built-in device, and captures
them again through the library: the texts are equal but for what is named here. LINKED and OPENING are zelvane-capture,
built in its two ways. Exit status 77 without an X server."""

import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import defaultdict

COMMAND, LINKED, OPENING = sys.argv[1:]
SIZES = ('buffer', 'red', 'green', 'blue', 'alpha', 'depth', 'stencil')
NUMBERS = {f'{size}_size' for size in SIZES} | {
    'samples', 'sample_buffers', 'config_caveat', 'level', 'native_renderable', 'native_visual_type'}
BITS = {'renderable_type': ('EGL_OPENGL_ES_BIT', 'EGL_OPENGL_ES2_BIT', 'EGL_OPENGL_ES3_BIT_KHR', 'EGL_OPENGL_BIT'),
        'surface_type': ('EGL_WINDOW_BIT', 'EGL_PBUFFER_BIT', 'EGL_PIXMAP_BIT')}
BITS['conformant'] = BITS['renderable_type']

# What a capture through the library differs in, for a program that "zelvane run" starts on the captured EGL. An element
# that ends in a slash stands for all that follow it.
NAMED = {
    ('config', 'swap_interval'): 'the library accepts the interval 0 on every config',
    ('config', 'native_visual_type'): 'the visual is the one of the GLX config that the host has for the config',
    ('config', 'captured/native_visual_id'): 'the same',
    ('egl', 'captured/'): 'vendor, version, APIs and extensions of EGL are the library\'s',
    ('es', 'captured/version'): 'it names the library',
    ('es', 'implementation_color_read_format'): 'it is that of the host\'s framebuffer',
}
# Elements of ES blocks that back ends do not read: a context reports the host's own.
HOSTS_OWN = {'max_palette_matrices', 'max_vertex_units', 'sample_buffers', 'samples', 'shader_compiler',
             'shader_binary_format', 'program_binary_format', 'internal_format',
             'implementation_color_read_type', 'implementation_color_read_format',
             'min_fragment_interpolation_offset', 'max_fragment_interpolation_offset',
             'max_debug_group_stack_depth', 'max_debug_logged_messages', 'max_debug_message_length', 'max_label_length'}
# ES 1 has a choice of them; the first format of a type goes with it.
READ_FORMATS = {'5121': '6408', '33635': '6407'}
GREATER = {'min_program_texel_offset', 'min_program_texture_gather_offset', 'uniform_buffer_offset_alignment',
           'shader_storage_buffer_offset_alignment', 'texture_buffer_offset_alignment'}

DESKTOP = '''<profile><egl host_only="true"><config id="1"><buffer_size>32</buffer_size><red_size>8</red_size>
<green_size>8</green_size><blue_size>8</blue_size><alpha_size>8</alpha_size><depth_size>24</depth_size>
<stencil_size>8</stencil_size><samples>0</samples><sample_buffers>0</sample_buffers><level>0</level>
<surface_type>EGL_PBUFFER_BIT</surface_type>%s</config></egl>%s</profile>'''

faults = []


def run(*words, status=0, text=None, **environment):
    done = subprocess.run(words, input=text, capture_output=True, env={**os.environ, **environment}, timeout=120)
    assert done.returncode == status, (words, done.returncode, done.stdout[-500:], done.stderr[-2000:])
    return done.stdout.decode()


def value_of(element):
    return tuple((child.tag, child.text) for child in element) if len(element) else element.text


def put_all(facts, place, parent):
    for element in parent:
        if element.tag == 'captured':
            for child in element:
                facts[place, 'captured/' + child.tag].append(value_of(child))
        else:
            facts[place, element.tag].append(value_of(element))


def facts_of(text):
    """{(place, element): values}, where the place is ('config', '3'), ('es', '20') or ('egl',)."""
    root = ElementTree.fromstring(text.encode())
    facts = defaultdict(list)
    for config in root.iter('config'):
        put_all(facts, ('config', config.get('id')), config)
    put_all(facts, ('egl',), [element for element in root.find('egl') if element.tag != 'config'])
    for block in root.findall('es'):
        put_all(facts, ('es', block.get('version')), block)
    for (place, element), values in facts.items():
        if element == 'compressed_texture_format':
            values.sort()  # the library's order
    return facts


def check(what, wanted, had):
    if wanted != had:
        faults.append(f'{what}: wanted {wanted}, had {had}')


def is_named(place, element):
    return any(place[0] == row[0] and (element == row[1] or row[1].endswith('/') and element.startswith(row[1]))
               for row in NAMED)


def compare_with_system(captured, again, carried):
    """carried: of a device that announces all that the library has."""
    assert len({place for place, _ in captured}) > 5, 'a real driver has more'
    for key in sorted(captured.keys() | again.keys()):
        place, element = key
        wanted, had = captured[key], again[key]
        if element in ('extension', 'compressed_texture_format') and place[0] == 'es':
            wanted = [value for value in wanted if value in carried[key]]
        if not is_named(place, element):
            check(key, wanted, had)


# ---- The built-in devices ----

def configs_of(profile):
    """The elements of each config as the library reads them."""
    for config in ElementTree.fromstring(profile.encode()).iter('config'):
        texts = defaultdict(list)
        for element in config:
            texts[element.tag].append(element.text)
        wanted = {name: [str(int(texts[name][-1]))] for name in NUMBERS & texts.keys()}
        for name in ('bind_to_texture_rgb', 'bind_to_texture_rgba'):
            wanted[name] = ['EGL_TRUE' if texts[name][-1] == 'EGL_TRUE' else 'EGL_FALSE']
        for name, bits in BITS.items():
            wanted[name] = [bit for bit in bits if bit in texts[name]]
        yield config.get('id'), wanted


def versions_of(profile):
    return tuple(sorted(block.get('version') for block in ElementTree.fromstring(profile.encode()).findall('es')))


def met(element, device, host):
    """The device's value as far as the host carries it."""
    if isinstance(device, tuple):
        numbers = [(float(own), float(hosts)) for (_, own), (_, hosts) in zip(device, host)]
        takes = (max, min) if element.endswith('_range') else (min, min, min)
        return [f'{take(pair):.9g}' for take, pair in zip(takes, numbers)]
    return str((max if element in GREATER else min)(int(device), int(host)))


def numbers_of(value):
    return [text for _, text in value] if isinstance(value, tuple) else value


def compare_block(what, block, had, host, is_es1):
    """had and host: {element: values} of the context that the block is for."""
    names = ['GL_' + name.removeprefix('GL_') for name in block['extension']]
    check((what, 'extension'), [name for name in dict.fromkeys(names) if name in host['extension']], had['extension'])
    told = block['compressed_texture_format'] or (host['compressed_texture_format'] if is_es1 else [])
    check((what, 'formats'), sorted(set(told) & set(host['compressed_texture_format'])),
          had['compressed_texture_format'])
    if is_es1 and block['implementation_color_read_type']:
        read = block['implementation_color_read_type'][0]
        check((what, 'read'), (read, (block['implementation_color_read_format'] or [READ_FORMATS[read]])[0]),
              (had.pop('implementation_color_read_type')[0], had.pop('implementation_color_read_format')[0]))
    for element in had.keys() - {'extension', 'compressed_texture_format'}:
        if not element.startswith('captured/') and element not in HOSTS_OWN and block[element]:
            check((what, element), met(element, block[element][0], host[element][0]), numbers_of(had[element][0]))
        elif element not in ('captured/vendor', 'captured/renderer'):
            check((what, element), host[element], had[element])


def halved(profile):
    """The profile with every limit changed."""
    root = ElementTree.fromstring(profile.encode())
    for element in root.findall('es/*'):
        if element.tag not in HOSTS_OWN | {'extension', 'captured', 'compressed_texture_format'}:
            for number in list(element) or [element]:
                value = float(number.text)
                # Doubles, which back ends compute with, do not hold greater numbers exactly.
                less = int(value / 2) if abs(value) < 2 ** 53 else 10 ** 9
                number.text = str(less) if abs(value) > 1 else number.text
    return ElementTree.tostring(root).decode()


def compare_halved(profile, host):
    text = halved(profile)
    install('System halved', text)
    blocks, again = facts_of(text), facts_of(through_us('System halved'))
    for version in versions_of(profile):
        compare_block(('halved', version), block_of(blocks, version), block_of(again, version),
                      block_of(host, version), version == '1')


def block_of(facts, version):
    return defaultdict(list, {key[1]: values for key, values in facts.items() if key[0] == ('es', version)})


def compare_with_device(name, profile, again, host):
    root = ElementTree.fromstring(profile.encode())
    ids = []
    for config, wanted in configs_of(profile):
        ids.append(config)
        for element, values in wanted.items():
            check((name, config, element), values, again[('config', config), element])
    check((name, 'configs'), ids, [place[1] for place, element in again if element == 'buffer_size'])

    blocks = facts_of(profile)
    versions = versions_of(profile)
    check((name, 'versions'), list(versions), [place[1] for place, element in again
                                          if place[0] == 'es' and element == 'captured/version'])
    for version in versions:
        had, hosts_own = block_of(again, version), block_of(host, version)
        # A context is raised to the highest version of its config and device, and then has that version's block.
        raised = '3' if version != '1' and had['captured/version'][0].startswith('OpenGL ES 3') else version
        compare_block((name, version), block_of(blocks, raised), had, hosts_own, version == '1')
        for string in ('vendor', 'renderer'):
            told = root.find(string)
            wanted = [told.text] if told is not None else hosts_own['captured/' + string]
            check((name, version, string), wanted, had['captured/' + string])


# ---- The cases ----

def through_us(profile, *program):
    return run(COMMAND, 'run', '--profile', profile, '--', *(program or (LINKED,)))


def as_a_device(profile):
    """Without what programs of the desktop get beside the device. Back ends are unloaded with their last context then,
    and what their tables own is lost."""
    return facts_of(through_us(profile, 'env', '-u', 'ZELVANE_DESKTOP_CLIENTS', 'LSAN_OPTIONS=detect_leaks=0', LINKED))


def install(name, text):
    return run(COMMAND, 'profiles', 'import', '-', '--name', name, text=text.encode())


def hosts():
    """What the host carries, by the ES versions of a device."""
    bits = {'1': 'EGL_OPENGL_ES_BIT', '2': 'EGL_OPENGL_ES2_BIT', '3': 'EGL_OPENGL_ES3_BIT_KHR'}
    for versions in (('1', '2'), ('1', '2', '3'), ('1', '3')):
        text = DESKTOP % (''.join(f'<renderable_type>{bits[version]}</renderable_type>' for version in versions),
                          ''.join(f'<es version="{version}"/>' for version in versions))
        install(f'Host {versions}', text)
        yield versions, as_a_device(f'Host {versions}')


def texts_that_need_escapes():
    hostile = b'A <b> & "c" \xc3\xa9 \x01\xff'
    told = subprocess.run([LINKED, b'--name', hostile], capture_output=True, check=True).stdout
    assert ElementTree.fromstring(told).find('device').text == 'A <b> & "c" \u00e9 ??', told[:200]
    run(LINKED, '--nmae', 'x', status=2)
    run(LINKED, '-o', '/nowhere/x', status=1)


def run_cases(home):
    system = run(LINKED)
    check('opened instead of linked', system, run(OPENING))
    assert '<es version="2">' in run(LINKED, DISPLAY='', WAYLAND_DISPLAY=''), 'without a window system'
    texts_that_need_escapes()

    path = os.path.join(home, 'system.xml')
    run(LINKED, '-o', path)
    told = run(COMMAND, 'profiles', 'import', path, '--name', 'System')
    check('problems', [], [line for line in told.splitlines() if line.startswith(path)])
    check('exported', system, run(COMMAND, 'profiles', 'export', 'System'))
    again = facts_of(through_us('System'))
    compare_with_system(facts_of(system), again, facts_of(through_us('Desktop')))
    compare_halved(system, again)

    by_versions = dict(hosts())
    for device in run(COMMAND, 'profiles', '--names').splitlines():
        if device.startswith(('Host', 'System')):
            continue
        profile = run(COMMAND, 'profiles', 'export', device)
        compare_with_device(device, profile, as_a_device(device), by_versions[versions_of(profile)])


def main():
    if not os.environ.get('DISPLAY'):
        print('there is no X server: DISPLAY is not set')
        sys.exit(77)
    with tempfile.TemporaryDirectory() as home:
        os.environ['HOME'] = home
        run_cases(home)
    print('\n'.join(map(str, faults)))
    sys.exit(1 if faults else 0)


main()
