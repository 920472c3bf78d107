// A card for each application, with its frame rate as a curve of the last minute.
const cards = new Map(); // by number of the application

function ceilingOf(values) {
  const most = Math.max(10, ...values);
  const step = 10 ** Math.floor(Math.log10(most)) / 2;
  return Math.ceil(most * 1.05 / step) * step;
}

function drawCurve(card, values) {
  const ceiling = ceilingOf(values);
  const left = curveSeconds - values.length;
  const height = value => (100 - 100 * value / ceiling).toFixed(1);
  const points = values.map((value, index) => `${left + index} ${height(value)}`).join('L');
  const low = height(Math.min(...values));
  card.querySelector('.curve').setAttribute('d', points && `M${points}`);
  card.querySelector('.area').setAttribute('d', points && `M${left} 100L${points}L${curveSeconds - 1} 100Z`);
  card.querySelector('.low').setAttribute('d', points && `M0 ${low}H${curveSeconds - 1}`);
}

function drawFrames(card, application) {
  const values = application.frames?.values ?? [];
  const last = values.length ? values.at(-1) : '–';
  const lowest = values.length ? Math.min(...values) : '–';
  setText(card.querySelector('.rate strong'), last);
  setText(card.querySelector('.latest'), application.ended ? 'end' : 'now');
  setText(card.querySelector('.lowest'), values.length ? `lowest ${lowest}` : 'no frames yet');
  card.querySelector('.chart').setAttribute('aria-label', values.length
    ? `Frames per second in the last minute: ${last} last, ${lowest} at the lowest` : 'No frames yet');
  drawCurve(card, values);
}

function makeCard(application) {
  const card = byId('card-template').content.firstElementChild.cloneNode(true);
  const find = selector => card.querySelector(selector);
  find('h3').id = `application-${application.number}`;
  find('article').setAttribute('aria-labelledby', find('h3').id);
  find('.wireframe').onclick = () => {
    const { pid, isWireframe } = applications.get(application.number);
    command({ wireframe: !isWireframe, pid });
  };
  find('.show-report').onclick = () => showReport(applications.get(application.number));
  find('.show-log').onclick = () => showLogOf(applications.get(application.number));
  for (const [selector, label] of [['.wireframe', 'Wireframe'], ['.show-report', 'System Report'], ['.show-log', 'Log']])
    find(selector).setAttribute('aria-label', `${label} of ${nameOf(application)} ${application.pid}`);
  return card;
}

function drawCard(application) {
  if (!cards.has(application.number)) cards.set(application.number, makeCard(application));
  const card = cards.get(application.number);
  const find = selector => card.querySelector(selector);
  setText(find('h3'), nameOf(application));
  find('h3').title = application.program;
  setText(find('.title'), application.title);
  find('.title').title = application.title;
  setText(find('.pid'), application.pid);
  setText(find('.device'), application.device || 'none chosen');
  find('.device').title = application.device;
  setText(find('.started'), timeOf(application.started));
  setText(find('.state'), application.ended ? `ended ${timeOf(application.ended)}` : 'running');
  card.classList.toggle('ended', application.ended !== 0);
  find('.wireframe').disabled = application.ended !== 0;
  find('.wireframe').setAttribute('aria-pressed', application.isWireframe);
  const report = find('.show-report');
  report.disabled = !application.report;
  report.classList.toggle('lacks', application.lacks > 0);
  setText(report, application.lacks ? `Report: ${application.lacks} missing` : 'System Report');
  drawFrames(card, application);
}

// Running applications come first, the newest in front.
function inOrder() {
  return [...applications.values()].sort((one, other) =>
    (one.ended !== 0) - (other.ended !== 0) || other.number - one.number);
}

function drawCards(changed, isOtherOrder) {
  for (const number of changed) if (applications.has(number)) drawCard(applications.get(number));
  if (!isOtherOrder) return;
  for (const [number, card] of cards) {
    if (applications.has(number)) continue;
    card.remove();
    cards.delete(number);
  }
  const list = byId('applications');
  inOrder().forEach((application, index) => {
    const card = cards.get(application.number);
    if (list.children[index] !== card) list.insertBefore(card, list.children[index] ?? null);
  });
  const running = inOrder().filter(application => !application.ended);
  setText(byId('application-count'), applications.size ? `${running.length} running` : '');
  byId('no-applications').hidden = applications.size > 0;
  byId('wireframe-all').disabled = running.length === 0;
  byId('wireframe-all').setAttribute('aria-pressed',
    running.length > 0 && running.every(application => application.isWireframe));
  document.title = running.length ? `${running.length} running – Zelvane monitor` : 'Zelvane monitor';
}
