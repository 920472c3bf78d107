// The System Report of an application as a table, and the list of failed calls.
let shownReport = null;

function featureRow(feature) {
  const list = texts => texts.map(text => make('p', {}, text));
  const isLacked = !feature.isAvailable && feature.holdsBack.length;
  return make('tr', isLacked ? { class: 'missing' } : {},
    make('th', { scope: 'row' }, feature.name),
    make('td', { class: feature.isAvailable ? 'host' : 'host lacks' }, feature.isAvailable ? '✓ there' : '✕ missing'),
    make('td', { 'data-label': 'Requires' }, ...list(feature.requires)),
    make('td', { 'data-label': 'Holds back' }, feature.isAvailable ? '' : feature.holdsBack.join(', ') || 'nothing'));
}

function drawReport() {
  const { report } = shownReport;
  const isBrief = byId('report-missing').checked;
  const features = report.features.filter(feature => !isBrief || !feature.isAvailable)
    .sort((one, other) => one.isAvailable - other.isAvailable || other.holdsBack.length - one.holdsBack.length ||
      one.name.localeCompare(other.name));
  byId('report').querySelector('tbody').replaceChildren(...features.map(featureRow));
}

function showReport(application) {
  shownReport = application;
  const { report, lacks } = application;
  setText(byId('report-title'), `System Report of ${nameOf(application)} ${application.pid}`);
  setText(byId('report-host'), `The host has OpenGL ${report.openGL}. ` +
    (lacks ? `Missing features that something requires: ${lacks}.` : 'No required feature is missing.'));
  byId('report-sections').replaceChildren(...report.sections.map(section =>
    make('li', section.isSupported ? {} : { class: 'missing' }, `${section.isSupported ? '✓' : '✕'} ${section.name}`)));
  byId('report-missing').checked = lacks > 0;
  drawReport();
  byId('report').showModal();
}

function refusalItem(refusal) {
  const application = applications.get(refusal.application);
  const missing = refusal.isForTheHost && application?.report ? lackedBy(application.report).map(feature => feature.name) : [];
  const words = make('div', {}, make('p', {}, make('strong', {}, refusal.who, make('time', {}, timeOf(refusal.time)))),
    make('p', {}, refusal.text));
  if (missing.length) words.append(make('p', { class: 'missing' }, `The host lacks: ${missing.join(', ')}`));
  const actions = make('div', { class: 'actions' });
  if (application?.report) {
    const show = make('button', { type: 'button' }, 'System Report');
    show.onclick = () => showReport(applications.get(refusal.application));
    actions.append(show);
  }
  const dismiss = make('button', { type: 'button', 'aria-label': `Dismiss the refusal of ${refusal.who}` }, 'Dismiss');
  dismiss.onclick = () => {
    dismissed.add(refusal.number);
    drawRefusals();
  };
  actions.append(dismiss);
  return make('li', { 'data-number': refusal.number }, words, actions);
}

// Only changed elements are replaced, since screen readers announce new ones.
function drawRefusals() {
  const list = byId('refusals').querySelector('ul');
  const wanted = refusals.filter(refusal => !dismissed.has(refusal.number));
  const numbers = new Set(wanted.map(refusal => String(refusal.number)));
  for (const item of [...list.children]) if (!numbers.has(item.dataset.number)) item.remove();
  const shown = new Set([...list.children].map(item => item.dataset.number));
  for (const refusal of wanted) if (!shown.has(String(refusal.number))) list.prepend(refusalItem(refusal));
}

byId('report-missing').onchange = drawReport;
byId('report-close').onclick = () => byId('report').close();
