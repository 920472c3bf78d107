// The connection to the command: updates arrive as events, commands are sent as requests.
let source = null;

function setConnection(state, words, trouble) {
  byId('connection').dataset.state = state;
  setText(byId('connection'), words);
  setText(byId('trouble'), trouble);
}

let noticeTimer = 0;
function notify(text) {
  setText(byId('notice'), text);
  clearTimeout(noticeTimer);
  noticeTimer = setTimeout(() => setText(byId('notice'), ''), 5000);
}

function take(update) {
  const changed = takeApplications(update);
  drawCards(changed, update.numbers !== undefined);
  if (update.numbers) drawProcesses();
  if (update.refusals || update.isCleared || update.isWhole) drawRefusals();
  takeLog(update);
  for (const notice of update.notices ?? []) notify(notice.text);
  if (update.skipped) notify(`${update.skipped} log lines arrived too fast and are not shown`);
}

// Called if the stream is rejected: another command has the address, or too many pages are open.
async function explain() {
  const answer = await fetch('.', { method: 'HEAD' }).catch(() => null);
  if (answer?.status === 403) {
    setConnection('gone', 'Another monitor', 'A monitor is running again. Its terminal shows the new address.');
    return;
  }
  if (answer?.ok) setConnection('waiting', 'Waiting', 'Too many pages are open. This one connects when another is closed.');
  setTimeout(connect, 2000);
}

function connect() {
  source?.close();
  source = new EventSource('events');
  source.onopen = () => setConnection('live', 'Live', '');
  source.onmessage = event => take(JSON.parse(event.data));
  source.onerror = () => {
    setConnection('gone', 'Not connected',
      'The monitor has ended or cannot be reached. This page shows its last state and reconnects automatically.');
    if (source.readyState === EventSource.CLOSED) explain();
  };
}

async function command(words) {
  const answer = await fetch('commands', {
    method: 'POST', headers: { 'Content-Type': 'application/json' }, body: JSON.stringify(words),
  }).catch(() => null);
  if (!answer?.ok) notify('The monitor did not accept the command.');
}

byId('wireframe-all').onclick = event => command({ wireframe: event.currentTarget.getAttribute('aria-pressed') !== 'true' });
byId('clear').onclick = () => command({ clear: true });
drawCards([], true);
connect();
