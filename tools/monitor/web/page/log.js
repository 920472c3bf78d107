// The log. Only visible lines are elements, whatever the number of lines.
const box = byId('log-lines');
const sheet = box.firstElementChild;
const levelNames = { log_info: 'info', log_warning: 'warning', log_error: 'error' };

let lines = []; // all lines, the oldest first, each with its number
let shown = []; // the lines that pass the filter
let held = []; // lines that arrived while the log is paused
let nextNumber = 0;
let isPaused = false;
let isAtEnd = true;
let chosen = null;
let isDrawing = false;
const rows = [];

const filter = { levels: new Set(Object.keys(levelNames)), pid: '', text: '' };

function passes(line) {
  return filter.levels.has(line.type) && (!filter.pid || String(line.pid) === filter.pid) &&
    (!filter.text || line.text.toLowerCase().includes(filter.text));
}

const rowHeight = () => (matchMedia('(max-width: 40rem)').matches ? 3.2 : 1.75) *
  parseFloat(getComputedStyle(document.documentElement).fontSize);
let height = rowHeight();

// A line's time is in UTC, as in the files.
function localTime(line) {
  return `${timeOf(Date.parse(line.time))}.${line.time.slice(20, 23)}`;
}

function trim(list) {
  const last = list.length - mostLogLines;
  if (last > 0) list.splice(0, last);
}

function takeLog(update) {
  if (update.isWhole || update.isCleared) clearLog();
  if (!update.log) return;
  if (isPaused) {
    held.push(...update.log);
    trim(held);
  } else {
    append(update.log);
  }
  drawLog();
}

function append(added) {
  for (const line of added) line.number = nextNumber++;
  lines = lines.concat(added);
  shown.push(...added.filter(passes));
  trim(lines);
  const gone = shown.findIndex(line => line.number >= lines[0].number);
  const count = gone < 0 ? shown.length : gone;
  shown.splice(0, count);
  // A reader who has scrolled up keeps the same lines in view.
  if (!isAtEnd) box.scrollTop -= count * height;
}

function clearLog() {
  lines = [];
  shown = [];
  held = [];
  chosen = null;
  isAtEnd = true;
  drawLog();
}

function drawLog() {
  if (isDrawing) return;
  isDrawing = true;
  requestAnimationFrame(() => {
    isDrawing = false;
    paintLog();
  });
}

function fillRow(row, line, index) {
  row.hidden = !line;
  if (!line) return;
  row.className = `line ${line.type}`;
  row.id = `line-${line.number}`;
  row.style.transform = `translateY(${index * height}px)`;
  row.setAttribute('aria-posinset', index + 1);
  row.setAttribute('aria-setsize', shown.length);
  row.setAttribute('aria-selected', line === chosen);
  const texts = [localTime(line), levelNames[line.type], `${line.command} ${line.pid}`,
    line.frame === undefined ? line.text : `#${line.frame} ${line.text}`];
  texts.forEach((text, cell) => setText(row.children[cell], text));
}

function makeRow() {
  const row = make('div', { role: 'option' }, ...['when', 'level', 'who', 'text'].map(name => make('span', { class: name })));
  sheet.append(row);
  return row;
}

function paintLog() {
  sheet.style.height = `${shown.length * height}px`;
  if (isAtEnd) box.scrollTop = box.scrollHeight;
  const first = Math.max(0, Math.floor(box.scrollTop / height) - 2);
  const count = Math.ceil(box.clientHeight / height) + 4;
  while (rows.length < count) rows.push(makeRow());
  rows.forEach((row, index) => fillRow(row, index < count ? shown[first + index] : undefined, first + index));
  const isSeen = chosen && rows.some(row => !row.hidden && row.id === `line-${chosen.number}`);
  if (isSeen) box.setAttribute('aria-activedescendant', `line-${chosen.number}`);
  else box.removeAttribute('aria-activedescendant');
  setText(byId('log-line'), chosen ? chosen.text : '');
  setText(byId('log-count'), shown.length === lines.length ? lines.length : `${shown.length} of ${lines.length}`);
  setText(byId('pause'), isPaused ? `Resume (${held.length} new)` : 'Pause');
  byId('log-empty').hidden = shown.length > 0;
  setText(byId('log-empty'), lines.length ? 'No line matches the filter.' : 'No line yet.');
}

function refilter() {
  shown = lines.filter(passes);
  isAtEnd = true;
  drawLog();
}

function choose(index) {
  if (!shown.length) return;
  const bounded = Math.max(0, Math.min(shown.length - 1, index));
  chosen = shown[bounded];
  isAtEnd = bounded === shown.length - 1;
  const top = bounded * height;
  if (top < box.scrollTop) box.scrollTop = top;
  else if (top + height > box.scrollTop + box.clientHeight) box.scrollTop = top + height - box.clientHeight;
  drawLog();
}

function drawProcesses() {
  const select = byId('process');
  const named = inOrder().map(application => [String(application.pid), `${nameOf(application)} ${application.pid}`]);
  // The chosen process stays in the list even if its application was removed.
  if (filter.pid && !named.some(([pid]) => pid === filter.pid)) named.push([filter.pid, filter.pid]);
  select.replaceChildren(make('option', { value: '' }, 'All processes'),
    ...named.map(([value, name]) => make('option', { value }, name)));
  select.value = filter.pid;
}

function showLogOf(application) {
  filter.pid = String(application.pid);
  drawProcesses();
  refilter();
  box.focus();
}

box.onscroll = () => {
  isAtEnd = box.scrollTop + box.clientHeight >= box.scrollHeight - height / 2;
  drawLog();
};
box.onclick = event => {
  const row = event.target.closest('.line');
  if (row) choose(shown.findIndex(line => `line-${line.number}` === row.id));
};
box.onkeydown = event => {
  const page = Math.floor(box.clientHeight / height);
  const at = chosen ? shown.indexOf(chosen) : -1;
  const from = at < 0 ? shown.length : at;
  const target = { ArrowUp: from - 1, ArrowDown: from + 1, PageUp: from - page, PageDown: from + page, Home: 0,
    End: shown.length - 1 }[event.key];
  if (event.key === 'Escape') chosen = null;
  if (target === undefined) return drawLog();
  event.preventDefault();
  choose(target);
};
for (const input of document.querySelectorAll('.levels input')) {
  input.onchange = () => {
    filter.levels[input.checked ? 'add' : 'delete'](input.value);
    refilter();
  };
}
byId('process').onchange = event => {
  filter.pid = event.target.value;
  refilter();
};
byId('search').oninput = event => {
  filter.text = event.target.value.toLowerCase();
  refilter();
};
byId('pause').onclick = () => {
  isPaused = !isPaused;
  byId('pause').setAttribute('aria-pressed', isPaused);
  if (!isPaused) append(held);
  if (!isPaused) held = [];
  drawLog();
};
addEventListener('resize', () => {
  height = rowHeight();
  drawLog();
});
drawLog();
