// The data from the monitor. The command has the same bounds and sends no more.
const mostLogLines = 10000;
const curveSeconds = 60;

const applications = new Map(); // by number
let refusals = [];
const dismissed = new Set(); // numbers of refusals

function curveOf(known, [first, ...values]) {
  const isNext = known && known.first + known.values.length === first;
  const all = isNext ? known.values.concat(values) : values;
  const kept = all.slice(-curveSeconds);
  return { first: first + values.length - kept.length, values: kept };
}

// The missing features that something requires.
function lackedBy(report) {
  return report.features.filter(feature => !feature.isAvailable && feature.holdsBack.length);
}

// Returns the numbers of the applications whose card must be redrawn.
function takeApplications(update) {
  const changed = new Set();
  if (update.isWhole) {
    applications.clear();
    refusals = [];
  }
  if (update.isCleared) refusals = [];
  for (const application of update.applications ?? []) {
    applications.set(application.number, { ...applications.get(application.number), ...application });
    changed.add(application.number);
  }
  for (const [number, report] of Object.entries(update.reports ?? {})) {
    const application = applications.get(Number(number));
    application.report = report;
    application.lacks = lackedBy(report).length;
    changed.add(Number(number));
  }
  for (const [number, frames] of Object.entries(update.frames ?? {})) {
    const application = applications.get(Number(number));
    application.frames = curveOf(application.frames, frames);
    changed.add(Number(number));
  }
  if (update.numbers) {
    const left = new Set(update.numbers);
    for (const number of applications.keys()) if (!left.has(number)) applications.delete(number);
  }
  if (update.refusals) refusals = update.refusals;
  return changed;
}

const nameOf = application => application.command || 'unknown';
const clock = new Intl.DateTimeFormat(undefined, { hour: '2-digit', minute: '2-digit', second: '2-digit', hourCycle: 'h23' });
const timeOf = milliseconds => (milliseconds ? clock.format(milliseconds) : 'unknown');

// An element with texts and child elements. Texts of applications pass through here and cannot become markup.
function make(tag, attributes, ...content) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  element.append(...content);
  return element;
}
const byId = id => document.getElementById(id);
function setText(element, text) {
  if (element.textContent !== String(text)) element.textContent = text;
}
