// Drives the page in a real browser and holds it against the native program.
//   node pagina.mjs PAGE PROGRAM ROOT OUT     pictures go to OUT
// The window's test program, where it was built beside the program, takes a project of the page and gives one back.
import { execFileSync } from 'node:child_process';
import { existsSync, mkdirSync, mkdtempSync, readFileSync, readdirSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { basename, dirname, join, resolve } from 'node:path';
import { pathToFileURL } from 'node:url';
import puppeteer from 'puppeteer-core';

const [pagina, programma, radice, uscita] = process.argv.slice(2).map((p) => resolve(p));
const indirizzo = pathToFileURL(pagina).href;
mkdirSync(uscita, { recursive: true });
const cartella = mkdtempSync(join(tmpdir(), 'ombrelia-pagina-'));
let guasti = 0;
function vale(cosa, vero, visto = '') {
  if (!vero) guasti += 1;
  console.log(`${vero ? 'ok  ' : 'FAIL'} ${cosa}${visto === '' ? '' : `: ${visto}`}`);
}

// The native program's answer to a script, in a folder with the examples.
for (const nome of readdirSync(join(radice, 'examples'))) writeFileSync(join(cartella, nome), readFileSync(join(radice, 'examples', nome)));
function nativo(righe) {
  return execFileSync(programma, ['batch', '-'], { cwd: cartella, input: righe.join('\n'), encoding: 'utf8' });
}
const delNativo = (nome) => readFileSync(join(cartella, nome), 'utf8');

// Two display lists, field by field: the same records and texts, numbers within 1e-12 of the dial's size.
function scarto(a, b) {
  const [righeA, righeB] = [a.trimEnd().split('\n'), b.trimEnd().split('\n')];
  if (righeA.length !== righeB.length) return { perche: `${righeA.length} records against ${righeB.length}` };
  let peggiore = 0;
  for (const [i, riga] of righeA.entries()) {
    const [ca, cb] = [riga.split('\t'), righeB[i].split('\t')];
    for (const [k, campo] of ca.entries()) {
      if (campo === cb[k]) continue;
      const [x, y] = [Number(campo), Number(cb[k])];
      if (ca.length !== cb.length || !Number.isFinite(x) || !Number.isFinite(y)) return { perche: `line ${i + 1}: ${riga} / ${righeB[i]}` };
      peggiore = Math.max(peggiore, Math.abs(x - y) / Math.max(Math.abs(x), Math.abs(y), 1e-3));
    }
  }
  return { peggiore, righe: righeA.length };
}

const browser = await puppeteer.launch({
  executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
  headless: true,
  userDataDir: join(cartella, 'profilo'),
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking', '--disable-component-update',
    '--disable-sync', '--lang=it'],
});
// What goes wrong on a page, and what it asks of the world.
let lamenti = [], richieste = [];
async function apri(coda = '', { largo = 1360, alto = 900, telefono = false, scuro = false } = {}) {
  const p = await browser.newPage();
  lamenti = [];
  richieste = [];
  p.on('pageerror', (e) => lamenti.push(e.message));
  p.on('console', (m) => m.type() === 'error' && lamenti.push(m.text()));
  p.on('dialog', (d) => {
    lamenti.push(`dialog ${d.message()}`);
    d.dismiss();
  });
  p.on('request', (r) => !r.url().startsWith('blob:') && !r.url().startsWith('data:') && richieste.push(r.url()));
  await p.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scuro ? 'dark' : 'light' }]);
  await p.setViewport({ width: largo, height: alto, isMobile: telefono, hasTouch: telefono, deviceScaleFactor: 1 });
  await p.goto(indirizzo + coda);
  await p.waitForFunction('window.ombrelia?.ready', { timeout: 20000 });
  return p;
}
const esegui = (p, righe) => p.evaluate((r) => window.ombrelia.perform(r), righe);
const prendi = async (p, nome) => Buffer.from(await p.evaluate(async (n) => [...await window.ombrelia.file(n)], nome));
const valore = (p, id) => p.$eval(`#${id}`, (e) => (e.type === 'checkbox' ? e.checked : e.value));

try {
  // The examples, list by list, as they are and with labels and title block.
  for (const nome of readdirSync(join(radice, 'examples')).filter((n) => n.endsWith('.omb'))) {
    for (const etichette of [[], ['check ckEtichette', 'check ckCartiglio']]) {
      const righe = [`open ${nome}`, ...etichette, 'click cmdRun', 'list lista.txt', 'value latR'];
      const p = await apri();
      const detto = await esegui(p, righe);
      vale(`${nome} prints the same`, detto === nativo(righe));
      const avuta = (await prendi(p, 'lista.txt')).toString();
      const s = scarto(avuta, delNativo('lista.txt'));
      vale(`${nome} ${etichette.length ? 'labelled ' : ''}as natively`, s.peggiore <= 1e-12, s.perche ?? `${s.righe} records, worst ${s.peggiore.toExponential(1)}`);
      vale('labels are drawn', avuta.includes('\tEtichette') === Boolean(etichette.length));
      await p.close();
    }
  }

  // How long the first dial takes, from the disk.
  const attese = [];
  for (let i = 0; i < 3; i += 1) {
    const p = await apri();
    attese.push(Number(await p.evaluate(() => document.documentElement.dataset.tempo)));
    vale('the page asks nothing of the world and complains of nothing', lamenti.length === 0 && richieste.length === 1, [...lamenti, ...richieste.slice(1)].join(' '));
    await p.close();
  }
  vale('the first dial comes', attese.every((t) => t > 0));
  console.log(`time  to the first dial: ${attese.join(', ')} ms; the aim is 1500`);

  {
    // Typing: from the key to the painted frame.
    const p = await apri();
    await p.evaluate(() => {
      window.tempi = [];
      document.getElementById('txtLAT').addEventListener('keydown', (e) => {
        const da = e.timeStamp;
        setTimeout(() => requestAnimationFrame(() => {
          const canale = new MessageChannel();
          canale.port1.onmessage = () => window.tempi.push(performance.now() - da);
          canale.port2.postMessage(0);
        }));
      }, true);
    });
    const disegnato = () => p.$eval('#disegno', (g) => g.outerHTML.length + g.textContent.length);
    const prima = await p.$eval('#disegno', (g) => g.outerHTML);
    await p.click('#txtLAT');
    for (const tasto of '44.4949\b\b\b\b35678\b\b\b2345') {
      await p.keyboard.press(tasto === '\b' ? 'Backspace' : tasto);
      await new Promise((r) => setTimeout(r, 120));
    }
    const tempi = (await p.evaluate(() => window.tempi)).sort((a, b) => a - b);
    vale('a dial is drawn anew at every key', (await p.$eval('#disegno', (g) => g.outerHTML)) !== prima && (await disegnato()) > 1000 && tempi.length > 20);
    // Times are shown, not judged: what else the machine does is in them. The aim is 50 ms.
    console.log(`time  from a key to the painted frame: quarter ${tempi[tempi.length >> 2].toFixed(0)} ms, median ${tempi[tempi.length >> 1].toFixed(0)} ms, worst ${tempi.at(-1).toFixed(0)} ms of ${tempi.length}`);
    await p.waitForFunction(() => location.hash.includes('txtLAT=44.352345'));
    vale('the address carries the dial', true, await p.evaluate(() => location.hash.slice(0, 60)));
    const link = await p.evaluate(() => location.hash);
    const q = await apri(link);
    vale('a link is a dial', (await q.$eval('#disegno', (g) => g.outerHTML)) === (await p.$eval('#disegno', (g) => g.outerHTML)));
    await q.close();

    // A point is read back and the shadow moves.
    await p.mouse.move(800, 500);
    const letto = await p.$eval('#letto', (e) => e.textContent);
    vale('the point under the pointer is read back', /mm/.test(letto) && /\d+:\d\d/.test(letto), letto);
    const punta = () => p.$eval('.punta', (e) => e.getAttribute('cx'));
    const ferma = await punta();
    await p.$eval('#ora', (e) => {
      e.value = 720;
      e.dispatchEvent(new Event('input'));
    });
    vale('the shadow follows the clock', (await punta()) !== ferma);
    // Towns.
    await p.click('#cerca');
    await p.keyboard.type('monde');
    await p.keyboard.press('Backspace');
    await p.keyboard.type('ovì');
    await p.waitForSelector('#trovati li', { timeout: 5000 });
    await p.keyboard.press('Enter');
    vale('a town fills the place', (await valore(p, 'txtLAT')).startsWith('44.3'), `${await valore(p, 'cerca')} ${await valore(p, 'txtLAT')} ${await valore(p, 'txtLonG')}`);
    // The certificate.
    await p.waitForSelector('#sigillo:not([hidden])', { timeout: 5000 });
    await p.click('#sigillo');
    vale('the certificate has its lines', (await p.$$eval('#foglietto[open] tbody tr', (r) => r.length)) > 10, await p.$eval('#foglietto h2', (h) => h.textContent));
    await p.click('#foglietto .chiudi');
    // Downloads, into a folder.
    const posta = join(cartella, 'scaricati');
    await (await browser.target().createCDPSession()).send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: posta, eventsEnabled: true });
    const quanti = await p.$$eval('#scarica div button', (b) => b.length);
    for (let i = 0; i < quanti; i += 1) {
      await p.$$eval('#scarica div button', (b, k) => b[k].click(), i);
      await new Promise((r) => setTimeout(r, 400));
    }
    const arrivati = readdirSync(posta).sort();
    const inizi = { omb: '"<', svg: '<?xml', dxf: '', csv: '', plt: 'IN;', pdf: '%PDF' };
    vale('project, SVG, DXF, the forms for machines and the table are downloaded', arrivati.length === 8 && arrivati.every((n) => {
      const testo = readFileSync(join(posta, n), 'utf8');
      return testo.length > 400 && testo.startsWith(inizi[n.split('.').pop()]);
    }), arrivati.join(' '));
    // Reports.
    await p.click('#cmdData');
    vale('a report opens as a table', (await p.$$eval('#foglietto[open] td', (t) => t.length)) > 10);
    await p.close();
  }

  {
    // Projects go both ways.
    const p = await apri();
    const righe = ['set txtLAT 41.9', 'set txtDec -33.5', 'check chkOreAstronomiche', 'check ck_Equinoziale', 'sheet 2 1.6 1 0.5'];
    await esegui(p, [...righe, 'save pagina.omb', 'click cmdRun', 'list pagina.txt']);
    writeFileSync(join(cartella, 'pagina.omb'), await prendi(p, 'pagina.omb'));
    nativo(['open pagina.omb', 'save ancora.omb', 'click cmdRun', 'list nativa.txt']);
    vale('a project of the page opens natively', delNativo('ancora.omb') === delNativo('pagina.omb') && scarto((await prendi(p, 'pagina.txt')).toString(), delNativo('nativa.txt')).peggiore <= 1e-12);
    const lascia = async (nome) => {
      await p.evaluate((testo, n) => {
        const dati = new DataTransfer();
        dati.items.add(new File([testo], n));
        document.getElementById('foglio').dispatchEvent(new DragEvent('drop', { dataTransfer: dati, bubbles: true, cancelable: true }));
      }, delNativo(nome), nome);
      await p.waitForFunction((n) => document.getElementById('nome').textContent === n, {}, nome);
      await esegui(p, ['save tornato.omb']);
      return (await prendi(p, 'tornato.omb')).toString() === delNativo(nome) && (await valore(p, 'txtInc')) === '12';
    };
    nativo([...righe, 'set txtInc 12', 'save nativo.omb']);
    vale('a native project dropped on the page opens there', await lascia('nativo.omb'));
    const finestra = join(dirname(programma), 'tests', 'prove_finestra');
    if (existsSync(finestra)) {
      const detto = execFileSync(finestra, ['--gtest_filter=Scambio.*'], { env: { ...process.env, OMBRELIA_SCAMBIO: cartella }, encoding: 'utf8' });
      vale('a project of the page opens in the window', /PASSED.* 1 test/.test(detto) && !/SKIPPED/.test(detto));
      vale('a project of the window dropped on the page opens there', await lascia('pagina.omb'));
    } else {
      console.log(`skip  page and window: no ${finestra}`);
    }
    await p.close();
  }

  {
    // Hostile links: what they carry stays text.
    const cattivi = [
      '<img src=x onerror=window.rotto=1>', '"><script>window.rotto=1</script>', '<svg onload=window.rotto=1>', 'javascript:window.rotto=1',
      "';window.rotto=1;//", '</title><script>window.rotto=1</script>', '{{constructor.constructor("window.rotto=1")()}}', '45&#x3c;b>', '\u0000\t\n45', '%00<iframe srcdoc=x>',
    ];
    for (const cattivo of cattivi) {
      const c = encodeURIComponent(cattivo);
      const p = await apri(`#txtInc=${c}&txtLAT=${c}&TxtStilo=${c}&chkOreAstronomiche=${c}&lingua=${c}&${c}=${c}&__proto__=1&cmdRun=${c}&Tavolo1.txtX=${c}&chkOreAstronomiche=1`);
      await new Promise((r) => setTimeout(r, 60));
      const visto = await p.evaluate(() => ({
        rotto: window.rotto, valore: document.getElementById('txtInc').value, lingua: document.documentElement.lang,
        estranei: document.querySelectorAll('img, iframe, b, object, embed, a[href^=javascript]').length, script: document.scripts.length,
        attributi: [...document.querySelectorAll('*')].filter((e) => [...e.attributes].some((a) => a.name.startsWith('on'))).length,
      }));
      const atteso = cattivo.replace(/[\t\r\n\0]/g, ' ').trim();
      vale(`hostile: ${JSON.stringify(cattivo)}`, visto.rotto === undefined && visto.estranei === 0 && visto.attributi === 0 && visto.script === 6 &&
        visto.valore.trim() === atteso && richieste.length === 1 && lamenti.length === 0, JSON.stringify({ ...visto, lamenti }));
      await p.close();
    }
    const p = await apri();
    await p.evaluate(() => {
      const s = document.createElement('script');
      s.textContent = 'window.rotto = 1';
      document.body.append(s);
      const d = document.createElement('div');
      d.setAttribute('onclick', 'window.rotto = 1');
      document.body.append(d);
      d.click();
    });
    vale('the policy stops a script that came in', (await p.evaluate(() => window.rotto)) === undefined && lamenti.length >= 2, `${lamenti.length} refusals`);
    await p.close();
  }

  // Another browser, where there is one: the first dial, a list, a link that would run.
  const altro = process.env.FIREFOX ?? '/usr/bin/firefox-esr';
  if (existsSync(altro)) {
    const volpe = await puppeteer.launch({ browser: 'firefox', executablePath: altro, headless: true });
    try {
      const p = await volpe.newPage();
      await p.setViewport({ width: 1360, height: 900 });
      await p.goto(`${indirizzo}#txtInc=${encodeURIComponent('<img src=x onerror=window.rotto=1>')}&chkOreAstronomiche=1`);
      await p.waitForFunction('window.ombrelia?.ready', { timeout: 20000 });
      vale('Firefox: a hostile link is text', await p.evaluate(() => window.rotto === undefined && document.images.length === 0 && document.getElementById('txtInc').value.startsWith('<img')));
      await p.goto('about:blank');
      await p.goto(indirizzo);
      await p.waitForFunction('window.ombrelia?.ready', { timeout: 20000 });
      console.log(`time  to the first dial in Firefox: ${await p.evaluate(() => document.documentElement.dataset.tempo)} ms`);
      const righe = ['open parete_zodiaco.omb', 'check ckEtichette', 'click cmdRun', 'list lista.txt'];
      nativo(righe);
      await esegui(p, righe);
      const s = scarto(Buffer.from(await p.evaluate(async () => Array.from(await window.ombrelia.file('lista.txt')))).toString(), delNativo('lista.txt'));
      vale('Firefox: a list as natively', s.peggiore <= 1e-12, s.perche ?? `${s.righe} records, worst ${s.peggiore.toExponential(1)}`);
      await p.screenshot({ path: join(uscita, 'pagina-firefox.png') });
    } finally {
      await volpe.close();
    }
  } else {
    console.log(`skip  Firefox: no ${altro} (Debian's firefox-esr, 80 MB, is not installed by the set-up)`);
  }

  // Pictures, and nothing beside the screen.
  for (const [nome, come] of Object.entries({
    'pagina-1360': { largo: 1360, alto: 900, coda: '#lingua=it' }, 'pagina-390': { largo: 390, alto: 844, telefono: true },
    'pagina-scura': { largo: 1360, alto: 900, scuro: true },
  })) {
    const p = await apri(come.coda, come);
    await new Promise((r) => setTimeout(r, 1000));
    const largo = await p.evaluate(() => document.documentElement.scrollWidth);
    vale(`${nome}: nothing wider than the screen`, largo <= come.largo, largo);
    await p.screenshot({ path: join(uscita, `${nome}.png`) });
    await p.close();
  }
  console.log(`${basename(pagina)}: ${readFileSync(pagina).length} bytes; pictures in ${uscita}`);
} finally {
  await browser.close();
  rmSync(cartella, { recursive: true, force: true });
}
if (guasti) {
  console.log(`${guasti} failed`);
  process.exitCode = 1;
}
