// The page: builds itself from the program's table of controls, hands every gesture to the module and shows what comes back.
// Nothing here computes a dial, and nothing that comes from fields, files or links is ever read as markup.
'use strict';

(() => {
  const cerca = (id) => document.getElementById(id);
  const SVG = 'http://www.w3.org/2000/svg';
  const CASA = '/home/web_user/';  // the program's folder
  const PRIMO = 'parete_torino.omb';  // shown until somebody designs
  const LINK_MASSIMO = 20000;

  // An element with properties, attributes (aria-…, role) and children; texts stay texts.
  function crea(nome, cose = {}, ...figli) {
    const e = document.createElement(nome);
    for (const [chiave, valore] of Object.entries(cose)) {
      if (chiave in e) e[chiave] = valore;
      else e.setAttribute(chiave, valore);
    }
    e.append(...figli);
    return e;
  }
  function figura(nome, cose) {
    const e = document.createElementNS(SVG, nome);
    for (const [chiave, valore] of Object.entries(cose)) e.setAttribute(chiave, valore);
    return e;
  }
  const liscio = (testo) => testo.replace(/\s+/g, ' ').trim();
  const grande = (testo) => testo.charAt(0).toUpperCase() + testo.slice(1);

  // --- the module ------------------------------------------------------------------------------------------------------

  let modulo = null;
  let detto = [];  // bytes of what the program printed
  let testi = {};  // the page's own words

  // A call by its name; arguments become one text, a TAB between them.
  function chiama(nome, ...argomenti) {
    const risposta = modulo.ccall('ombrelia_chiama', 'string', ['string', 'string'], [nome, argomenti.join('\t')]);
    if (risposta[0] !== '=') throw new Error(risposta.slice(1));
    return risposta.slice(1);
  }
  const chiedi = (...a) => JSON.parse(chiama(...a));
  function prendiDetto() {
    const testo = new TextDecoder().decode(new Uint8Array(detto));
    detto = [];
    return testo;
  }

  async function gonfia(id) {
    const byte = Uint8Array.from(atob(cerca(id).textContent), (c) => c.charCodeAt(0));
    const flusso = new Blob([byte]).stream().pipeThrough(new DecompressionStream('deflate'));
    return new Uint8Array(await new Response(flusso).arrayBuffer());
  }
  function posa(piccoli) {
    for (const [nome, testo] of Object.entries(piccoli)) modulo.FS.writeFile(CASA + nome, testo);
  }
  // The large tables come when the first dial stands, or when they are first asked for.
  let tabelle = null;
  function conTabelle() {
    tabelle ??= (async () => {
      const [mondo, luoghi] = await Promise.all([gonfia('mondo'), gonfia('luoghi')]);
      modulo.FS.writeFile(`${CASA}mondo.csv`, mondo);
      modulo.FS.writeFile(`${CASA}luoghi.csv`, luoghi);
    })();
    return tabelle;
  }

  // --- the drawing -----------------------------------------------------------------------------------------------------

  const foglio = cerca('foglio'), quadrante = cerca('quadrante'), disegno = cerca('disegno'), sopra = cerca('sopra');
  const strati = new Map();
  let misura = [1, 1, 0, 0, 1, 1];  // the sheet in metres: width, height, shift, mirrors
  let vista = null;  // x, y and width of what is seen, millimetres; null for the whole sheet

  let largo = 1, alto = 1;  // of the pane, in pixels of the page
  let pixel = 0;  // millimetres of the finest pixel that the drawing shown is meant for

  const pixelOra = () => 2 ** Math.floor(Math.log2(riquadro().l / largo / Math.max(globalThis.devicePixelRatio, 1)));
  function disegna(come = 'disegna') {
    pixel = pixelOra();
    const d = chiedi(come, pixel);
    const nuovi = new DOMParser().parseFromString(d.svg, 'image/svg+xml').querySelectorAll('g[id]');
    for (const g of nuovi) strati.set(g.id, document.adoptNode(g));
    disegno.replaceChildren(...d.strati.map((id) => strati.get(id)));
    if (d.foglio.join() !== misura.join()) {
      misura = d.foglio;
      for (const carta of [cerca('orlo'), cerca('carta'), cerca('ritaglio').firstElementChild]) {
        carta.setAttribute('width', misura[0] * 1000);
        carta.setAttribute('height', misura[1] * 1000);
      }
      vista = null;
    }
    inquadra();
    if (come === 'mostra') return;
    sigilla();
    if (d.avvisi.length) avvisa(d.avvisi.join(' '));
    else if (!d.strati.some((id) => !id.endsWith('-Cornice'))) avvisa(testi.vuoto);
  }

  // What is seen: the whole sheet with a margin, or where the user went.
  function riquadro() {
    const [l, h] = [largo, alto];
    if (vista) return { ...vista, h: vista.l * h / l };
    const [L, H] = [misura[0] * 1000, misura[1] * 1000];
    const k = Math.max(L / Math.max(l - 44, 60), H / Math.max(h - 44, 60));
    return { x: (L - k * l) / 2, y: (H - k * h) / 2, l: k * l, h: k * h };
  }
  function inquadra() {
    const r = riquadro();
    quadrante.setAttribute('viewBox', `${r.x} ${r.y} ${r.l} ${r.h}`);
    const mmAlPunto = r.l / largo;
    quadrante.classList.toggle('lontano', mmAlPunto > 0.5);
    for (const e of sopra.querySelectorAll('circle')) e.setAttribute('r', 5.5 * mmAlPunto);
    // Nearer, more shows.
    clearTimeout(inquadra.attesa);
    if (pixel && pixelOra() !== pixel) inquadra.attesa = setTimeout(() => prova(() => disegna('mostra')), 120);
  }
  function misuraFoglio() {
    [largo, alto] = [Math.max(foglio.clientWidth, 1), Math.max(foglio.clientHeight, 1)];
    inquadra();
  }
  function zoom(volte, px, py) {
    const r = riquadro(), scatola = foglio.getBoundingClientRect();
    const l = Math.min(Math.max(r.l / volte, 2), misura[0] * 20000);
    const [fx, fy] = [(px - scatola.left) / scatola.width, (py - scatola.top) / scatola.height];
    vista = { x: r.x + fx * (r.l - l), y: r.y + fy * (r.h - l * r.h / r.l), l };
    inquadra();
  }
  function sulFoglio(e) {
    const r = riquadro(), scatola = foglio.getBoundingClientRect();
    return [r.x + (e.clientX - scatola.left) / scatola.width * r.l, r.y + (e.clientY - scatola.top) / scatola.height * r.h];
  }

  function ascoltaFoglio() {
    const dita = new Map();
    foglio.addEventListener('wheel', (e) => {
      e.preventDefault();
      zoom(2 ** (-e.deltaY * (e.deltaMode === 1 ? 0.06 : 0.002)), e.clientX, e.clientY);
    }, { passive: false });
    foglio.addEventListener('pointerdown', (e) => {
      if (e.target.closest('button')) return;
      dita.set(e.pointerId, e);
      foglio.setPointerCapture(e.pointerId);
      leggi(e);
    });
    foglio.addEventListener('pointermove', (e) => {
      const prima = dita.get(e.pointerId);
      if (!prima) {
        if (e.pointerType === 'mouse') leggi(e);
        return;
      }
      const altro = [...dita.values()].find((d) => d.pointerId !== e.pointerId);
      const r = riquadro(), mm = r.l / largo;
      foglio.classList.add('preso');
      if (altro) {
        const lontano = (a, b) => Math.hypot(a.clientX - b.clientX, a.clientY - b.clientY);
        vista = { x: r.x - (e.clientX - prima.clientX) / 2 * mm, y: r.y - (e.clientY - prima.clientY) / 2 * mm, l: r.l };
        zoom(lontano(e, altro) / Math.max(lontano(prima, altro), 1), (e.clientX + altro.clientX) / 2, (e.clientY + altro.clientY) / 2);
      } else {
        vista = { x: r.x - (e.clientX - prima.clientX) * mm, y: r.y - (e.clientY - prima.clientY) * mm, l: r.l };
        inquadra();
      }
      dita.set(e.pointerId, e);
    });
    for (const fine of ['pointerup', 'pointercancel']) {
      foglio.addEventListener(fine, (e) => {
        dita.delete(e.pointerId);
        if (!dita.size) foglio.classList.remove('preso');
      });
    }
    foglio.addEventListener('pointerleave', () => {
      cerca('letto').replaceChildren();
      illumina();
    });
    const centro = () => {
      const s = foglio.getBoundingClientRect();
      return [s.left + s.width / 2, s.top + s.height / 2];
    };
    const tutto = () => {
      vista = null;
      inquadra();
    };
    foglio.addEventListener('dblclick', (e) => e.target.closest('button') || tutto());
    foglio.addEventListener('keydown', (e) => {
      const tratto = riquadro().l / 12;
      const vai = (x, y) => {
        const r = riquadro();
        vista = { x: r.x + x * tratto, y: r.y + y * tratto, l: r.l };
        inquadra();
      };
      const tasti = {
        '+': () => zoom(1.25, ...centro()), '=': () => zoom(1.25, ...centro()), '-': () => zoom(0.8, ...centro()), Home: tutto,
        ArrowLeft: () => vai(-1, 0), ArrowRight: () => vai(1, 0), ArrowUp: () => vai(0, -1), ArrowDown: () => vai(0, 1),
      };
      if (!tasti[e.key] || e.ctrlKey || e.metaKey) return;
      e.preventDefault();
      tasti[e.key]();
    });
    cerca('piu').onclick = () => zoom(1.5, ...centro());
    cerca('meno').onclick = () => zoom(1 / 1.5, ...centro());
    cerca('tutto').onclick = tutto;
    new ResizeObserver(misuraFoglio).observe(foglio);
    misuraFoglio();
  }

  // --- what a point says, and the shadow ------------------------------------------------------------------------------

  const lingua = () => cerca('lingua').value;
  const scritti = new Map();  // what writes a day, by language
  function giornoScritto(data) {
    const l = lingua();
    if (!scritti.has(l)) scritti.set(l, new Intl.DateTimeFormat(l, { day: 'numeric', month: 'long', timeZone: 'UTC' }));
    return scritti.get(l).format(new Date(`${data}T12:00:00Z`));
  }
  const anno = new Date().getFullYear();

  function leggi(e) {
    const [x, y] = sulFoglio(e);
    if (x < 0 || y < 0 || x > misura[0] * 1000 || y > misura[1] * 1000) return cerca('letto').replaceChildren();
    const p = chiedi('leggi', x, y, anno, riquadro().l / largo * 9);
    illumina(p.pretesa);
    const pezzi = [`${p.x.toFixed(0)}, ${p.y.toFixed(0)} mm`];
    if (p.luce === 'si') {
      pezzi.push(`${p.vera} ${testi.vera}`);
      pezzi.push(p.date.map((d, i) => `${giornoScritto(d)} ${p.fuso[i] ?? ''}`).join(` ${testi.oppure} `));
      pezzi.push(`${testi.sole} ${p.altezza.toFixed(1)}°`);
    } else {
      pezzi.push(testi[p.luce]);
    }
    if (p.linea) pezzi.push(p.linea);
    return cerca('letto').replaceChildren(pezzi.join('  ·  '));
  }
  // The line of that number shines; none without one.
  function illumina(pretesa) {
    if (illumina.ultima === pretesa) return;
    illumina.ultima = pretesa;
    sopra.querySelector('.vicina').setAttribute('d', pretesa === undefined ? '' : chiama('linea', pretesa));
  }

  let moto = 0;  // the animation's request
  const dataDelGiorno = (n) => new Date(Date.UTC(anno, 0, n)).toISOString().slice(0, 10);

  function ombra() {
    const data = dataDelGiorno(cerca('giorno').value), ore = cerca('ora').value / 60;
    const o = chiedi('ombra', data, ore);
    cerca('giornoDetto').textContent = giornoScritto(data);
    cerca('oraDetta').textContent = o.ore;
    cerca('luce').textContent = o.luce === 'si' ? `${o.vera} ${testi.vera} · ${testi.sole} ${o.altezza.toFixed(0)}°` : testi[o.luce];
    const [, via, linea, punta] = sopra.children;
    const cade = o.luce === 'si';
    for (const e of [linea, punta]) e.toggleAttribute('hidden', !cade);
    if (cade) {
      const [[x1, y1], [x2, y2]] = [o.stilo, o.punta];
      linea.setAttribute('d', `M${x1} ${y1}L${x2} ${y2}`);
      punta.setAttribute('cx', x2);
      punta.setAttribute('cy', y2);
    }
    return via;
  }
  function giornata() {
    const lungo = (misura[0] + misura[1]) * 2000;
    let d = '', penna = false;
    for (const p of chiedi('giornata', dataDelGiorno(cerca('giorno').value))) {
      const vicino = p && Math.abs(p[0]) < lungo && Math.abs(p[1]) < lungo;
      if (vicino) d += `${penna ? 'L' : 'M'}${p[0].toFixed(2)} ${p[1].toFixed(2)}`;
      penna = vicino;
    }
    ombra().setAttribute('d', d);
  }
  function muovi(si) {
    cancelAnimationFrame(moto);
    moto = 0;
    cerca('avvia').textContent = si ? '❚❚' : '▶';
    cerca('avvia').title = si ? testi.ferma : testi.avvia;
    cerca('avvia').setAttribute('aria-label', cerca('avvia').title);
    if (!si) return;
    const inizio = performance.now(), da = Number(cerca('ora').value);
    const fotogramma = (t) => {
      cerca('ora').value = (da + (t - inizio) / 10000 * 1440) % 1440;
      ombra();
      moto = requestAnimationFrame(fotogramma);
    };
    moto = requestAnimationFrame(fotogramma);
  }
  function barraDelTempo() {
    const oggi = Math.floor((Date.now() - Date.UTC(anno, 0, 1)) / 86400000) + 1;
    const prima = { giorno: cerca('giorno')?.value ?? oggi, ora: cerca('ora')?.value ?? 660 };
    const barra = (id, caption, max, mostra) => crea('label', { title: caption },
      crea('input', { id, type: 'range', min: id === 'giorno' ? 1 : 0, max, step: 1, value: prima[id], 'aria-label': caption }), crea('output', { id: mostra }));
    cerca('tempo').replaceChildren(
      crea('button', { id: 'avvia', type: 'button', onclick: () => muovi(!moto) }),
      barra('giorno', testi.giorno, 365, 'giornoDetto'), barra('ora', testi.ora, 1439, 'oraDetta'), crea('span', { id: 'luce', className: 'luce' }));
    cerca('giorno').oninput = giornata;
    cerca('ora').oninput = () => {
      muovi(false);
      ombra();
    };
    if (!sopra.children.length) {
      sopra.append(figura('path', { class: 'vicina' }), figura('path', { class: 'via' }), figura('path', { class: 'ombra' }), figura('circle', { class: 'punta', r: 5 }));
    }
    muovi(false);
    cerca('tempo').hidden = false;
  }

  // --- the table of controls ------------------------------------------------------------------------------------------

  let tavola = { gruppi: [], comandi: [], formati: [], macchina: [], rapporti: [] };
  const etichettaDi = (c) => liscio(c.caption) || liscio(c.tip);

  function campo(c, caption) {
    const e = crea('input', { id: c.nome, name: c.nome, type: 'text', inputMode: 'decimal', spellcheck: false, title: liscio(c.tip || caption) });
    e.setAttribute('aria-label', caption);
    e.addEventListener('input', () => scrivi(e));
    e.addEventListener('change', () => {
      mostraStato();
      e.value = chiedi('stato')[e.name][0];  // what the field holds, once it is left
    });
    e.addEventListener('keydown', (k) => passo(k, e));
    e.addEventListener('focus', () => e.select());
    return e;
  }
  // The arrows step by a hundredth of the number's size, rounded to a power of ten.
  function passo(k, e) {
    if (k.key !== 'ArrowUp' && k.key !== 'ArrowDown') return;
    const n = Number(e.value);
    if (!Number.isFinite(n) || e.value.trim() === '') return;
    k.preventDefault();
    const unita = 10 ** Math.min(Math.max(Math.floor(Math.log10(Math.abs(n) || 1)) - (k.shiftKey ? 2 : 1), -4), 1);
    e.value = String(Number((n + (k.key === 'ArrowUp' ? unita : -unita)).toFixed(6)));
    scrivi(e);
  }
  const premibile = (c) => crea('button', {
    id: c.nome, name: c.nome, type: 'button', className: 'pulsante', textContent: etichettaDi(c), title: liscio(c.tip || c.caption),
    onclick: () => (c.rapporto ? rapporto(c.nome) : premi(c.nome)),
  });

  // The plane from above (north up) and from its side, as the fields have it.
  function figure(nome) {
    const s = figura('svg', { class: 'figura', viewBox: '-50 -36 100 72', 'aria-hidden': 'true' });
    s.dataset.figura = nome;
    return s;
  }
  function ritraiFigure(stato) {
    const numero = (nome) => Number.parseFloat(stato[nome]?.[0]) || 0;
    const australe = numero('txtLAT') < 0;
    for (const s of document.querySelectorAll('.figura')) {
      const pianta = s.dataset.figura === 'Picture2';
      const a = pianta ? numero('txtDec') + (australe ? 180 : 0) : -numero('txtInc');
      const parti = pianta
        ? [['path', { d: 'M0 -33v66M-33 0h66', 'stroke-dasharray': '1 4' }], ['path', { d: 'M-3.5 -27 0 -33l3.5 6' }]]
        : [['path', { d: 'M-40 26h80', 'stroke-dasharray': '1 4' }]];
      const g = figura('g', { transform: pianta ? `rotate(${a})` : `translate(0 26) rotate(${a})` });
      g.append(figura('path', { class: 'muro', d: pianta ? 'M-26 0h52' : 'M0 0v-50' }), figura('path', { class: 'ago', d: pianta ? 'M0 0v20' : 'M0 -32h20' }));
      s.replaceChildren(...parti.map((p) => figura(...p)), g);
    }
  }

  // A row of the table as it reads: captions before their fields, boxes, buttons, lists.
  function riga(voci) {
    const e = crea('div', { className: 'riga' });
    const campi = voci.filter((c) => c.classe === 'testo').length;
    e.classList.toggle('fitta', campi > 1);
    let attesa = null;  // a caption whose field comes next
    for (const c of voci) {
      if (attesa && c.classe !== 'testo' && c.classe !== 'elenco') attesa = null;
      if (c.classe === 'etichetta') {
        attesa = crea('label', { className: 'campo' }, crea('span', { textContent: liscio(c.caption) }));
        e.append(attesa);
      } else if (c.classe === 'testo') {
        const caption = attesa?.textContent || etichettaDi(voci.find((v) => v.caption) ?? c);
        (attesa ?? e).append(campo(c, caption));
        attesa = null;
      } else if (c.classe === 'casella') {
        const quadro = crea('input', { id: c.nome, name: c.nome, type: 'checkbox', onchange: () => premi(c.nome) });
        e.append(crea('label', { className: 'casella', title: liscio(c.tip || c.caption) }, quadro, crea('span', { textContent: etichettaDi(c) })));
      } else if (c.classe === 'elenco') {
        const lista = crea('select', { id: c.nome, name: c.nome });
        lista.onchange = () => scrivi(lista);
        (attesa ?? e).append(lista);
        attesa = null;
      } else if (c.classe === 'pulsante' || c.classe === 'opzione') {
        e.append(premibile(c));
      } else if (c.nome.startsWith('Picture')) {
        e.append(figure(c.nome));
      } else {
        return crea('hr');
      }
    }
    return e;
  }

  function costruisci() {
    const aperti = new Map([...document.querySelectorAll('#gruppi details')].map((d) => [d.dataset.chiave, d.open]));
    tavola = chiedi('tavola');
    testi = tavola.testi;
    document.documentElement.lang = lingua();
    cerca('gruppi').replaceChildren(...tavola.gruppi.map((g) => {
      const d = crea('details', { open: aperti.get(g.chiave) ?? g.aperto }, crea('summary', { textContent: grande(g.titolo) }),
        crea('div', { className: 'righe' }, ...g.righe.map(riga)));
      d.dataset.chiave = g.chiave;
      return d;
    }));
    cerca('comandi').replaceChildren(...tavola.comandi.map(premibile));
    parole();
    barraDelTempo();
    mostraStato();
  }

  // The words around the table.
  function parole() {
    cerca('motto').textContent = testi.motto;
    cerca('cerca').placeholder = testi.cerca;
    cerca('cerca').setAttribute('aria-label', testi.cerca);
    cerca('apri').textContent = testi.progetto + '…';
    cerca('apri').title = testi.apri;
    cerca('copia').textContent = testi.copia;
    cerca('lascia').textContent = testi.lascia;
    for (const [id, testo] of [['piu', testi.avvicina], ['meno', testi.allontana], ['tutto', testi.tutto], ['tema', testi.tema]]) {
      cerca(id).title = testo;
      cerca(id).setAttribute('aria-label', testo);
    }
    cerca('lingua').setAttribute('aria-label', [...cerca('lingua').options].map((o) => o.text).join(', '));
    cerca('foglio').setAttribute('aria-label', testi.motto);
    cerca('foglietto').querySelector('.chiudi').setAttribute('aria-label', testi.chiudi);
    const esempi = modulo.FS.readdir(CASA).filter((n) => n.endsWith('.omb')).sort();
    const leggibile = (n) => liscio(n.replace('.omb', '').replaceAll('_', ' '));
    cerca('esempi').replaceChildren(crea('option', { value: '', textContent: testi.esempi }),
      ...esempi.map((n) => crea('option', { value: n, textContent: grande(leggibile(n)) })));
    cerca('esempi').setAttribute('aria-label', testi.esempi);
    cerca('scarica').firstElementChild.textContent = testi.scarica;
    const forme = [['omb', testi.progetto],
      ...tavola.formati.map((coda) => [coda, coda.toUpperCase(), coda === 'dxf' ? testi.perCad : '']),
      ...tavola.macchina.map((coda) => [`macchina.${coda}`, coda.toUpperCase(), testi.perMacchina]), ['csv', testi.tabella]];
    cerca('scarica').lastElementChild.replaceChildren(...forme.map(([forma, nome, nota = '']) => crea('button', {
      type: 'button', onclick: () => prova(() => scarica(forma)),
    }, nome, crea('small', { textContent: nota || `.${forma}` }))));
  }

  function mostraStato() {
    const stato = chiedi('stato');
    for (const [nome, [valore, abilitato, voci]] of Object.entries(stato)) {
      const e = cerca(nome);
      if (!e || !e.name) continue;
      e.disabled = !abilitato;
      e.closest('label')?.classList.toggle('spento', !abilitato);
      if (e.type === 'checkbox') e.checked = valore;
      else if (e.tagName === 'BUTTON') {
        if (typeof valore === 'boolean') e.setAttribute('aria-pressed', valore);
      } else {
        if (voci && e.options.length !== voci.length) {
          e.replaceChildren(...voci.map((v) => crea('option', { value: v, textContent: liscio(v) })));
        }
        if (e !== document.activeElement && e.value !== valore) e.value = valore;
      }
    }
    ritraiFigure(stato);
  }

  // --- gestures ---------------------------------------------------------------------------------------------------------

  let toccata = false;  // whether the dial is somebody's, and not the one shown at first
  let pronta = false;

  function avvisa(testo) {
    const e = cerca('avviso');
    e.textContent = testo;
    e.hidden = !testo;
    clearTimeout(avvisa.attesa);
    avvisa.attesa = setTimeout(() => {
      e.hidden = true;
    }, 5000);
  }
  // What the program told meanwhile, boxes only.
  function diDetto(testo = prendiDetto()) {
    const riquadri = testo.split('\n').filter((r) => r.startsWith('box: ')).map((r) => r.slice(5));
    if (riquadri.length) avvisa(riquadri.join(' '));
  }
  function prova(che) {
    try {
      return che();
    } catch (errore) {
      return avvisa(errore.message);
    }
  }

  function aggiorna() {
    mostraStato();
    prova(disegna);
    if (!cerca('tempo').hidden) prova(giornata);
  }
  function dopo() {
    toccata = true;
    cerca('avviso').hidden = true;
    diDetto();
    aggiorna();
    clearTimeout(dopo.attesa);
    dopo.attesa = setTimeout(scriviIndirizzo, 250);
  }
  function scrivi(e) {
    const voluto = e.value, resta = chiama('scrivi', e.name, voluto);
    if (resta !== voluto) {
      const dove = e.selectionStart - (voluto.length - resta.length);
      e.value = resta;
      e.setSelectionRange?.(dove, dove);
    }
    dopo();
  }
  async function premi(nome) {
    if (nome === 'cmdStati' || nome === 'cmdPlot') await conTabelle();
    chiama('premi', nome);
    dopo();
  }

  function indirizzo() {
    const p = new URLSearchParams(chiedi('collegamento'));
    if (lingua() !== 'it') p.set('lingua', lingua());
    return `#${p}`;
  }
  function scriviIndirizzo() {
    try {
      history.replaceState(null, '', indirizzo());
    } catch {
      // A browser that lets no local page do so: the button still copies the link.
    }
  }
  // A link's dial; false when it holds none.
  function dallIndirizzo() {
    const scritto = location.hash.slice(1, LINK_MASSIMO);
    if (!scritto) return false;
    const campi = [...new URLSearchParams(scritto)];
    const voluta = campi.find(([nome]) => nome === 'lingua')?.[1];
    if ([...cerca('lingua').options].some((o) => o.value === voluta)) cerca('lingua').value = voluta;
    const dial = campi.filter(([nome]) => nome !== 'lingua');
    if (!dial.length) return false;
    const piano = (testo) => testo.replace(/[\t\r\n\0]/g, ' ');
    chiama('collega', dial.map(([nome, valore]) => `${piano(nome)}\t${piano(valore)}`).join('\n'));
    cerca('nome').textContent = '';
    toccata = true;
    return true;
  }

  // Opens a project that lies in the program's folder, as a fresh program does.
  function apri(nome, diCasa) {
    chiama('avvia');
    prendiDetto();
    const motivo = chiama('esegui', `open ${nome}`);
    cerca('nome').textContent = nome;
    toccata = !diCasa;
    vista = null;
    diDetto();
    if (motivo) avvisa(motivo);
    aggiorna();
  }
  async function apriFile(scelto) {
    if (!scelto) return;
    const nome = scelto.name.replace(/[/\\\0\r\n]/g, '_');
    modulo.FS.writeFile(CASA + nome, new Uint8Array(await scelto.arrayBuffer()));
    apri(nome, false);
    scriviIndirizzo();
  }

  function salva(nome, byte, tipo) {
    const url = URL.createObjectURL(new Blob([byte], { type: tipo }));
    const a = crea('a', { href: url, download: nome });
    a.click();
    setTimeout(() => URL.revokeObjectURL(url), 10000);
  }
  const TIPI = { svg: 'image/svg+xml', dxf: 'image/vnd.dxf', plt: 'application/vnd.hp-hpgl', pdf: 'application/pdf', csv: 'text/csv', omb: 'application/octet-stream' };
  function scarica(forma) {
    cerca('scarica').open = false;
    const coda = forma.split('.').pop();
    const base = (cerca('nome').textContent || 'ombrelia').replace(/\.omb$/, '');
    if (forma === 'csv' && chiama('rapporto', 'cmdData') === 'null') return avvisa(testi.nessunaTabella);
    const scritto = forma === 'csv' ? chiama('salvaRapporto', 'csv') : chiama('esporta', forma);
    salva(`${base}${forma.startsWith('macchina.') ? '-macchina' : ''}.${coda}`, modulo.FS.readFile(scritto), TIPI[coda]);
  }

  // --- reports ---------------------------------------------------------------------------------------------------------

  function rapporto(nome) {
    const r = chiedi('rapporto', nome);
    if (!r) return avvisa(testi.nessunaTabella);
    const corpo = [];
    let aperta = -1, righe = null;
    for (const [tabella, dati, celle] of r.righe) {
      if (tabella < 0) {
        const p = crea('p', {}, ...celle.filter(Boolean).map((t) => crea('span', { textContent: t })));
        if (celle.some(Boolean)) corpo.push(p);
      } else if (dati) {
        if (tabella !== aperta) {
          aperta = tabella;
          const t = r.tabelle[tabella];
          righe = crea('tbody');
          corpo.push(crea('h3', { textContent: t.titolo }), crea('div', { className: 't' }, crea('table', {},
            crea('thead', {}, crea('tr', {}, ...t.colonne.map((c) => crea('th', { textContent: c })))), righe)));
        }
        righe.append(crea('tr', {}, ...celle.map((c) => crea('td', { textContent: c }))));
      }
    }
    const forme = tavola.rapporti.map((forma) => crea('button', {
      type: 'button', textContent: forma.toUpperCase(), onclick: () => salva(`${nome}.${forma}`, modulo.FS.readFile(chiama('salvaRapporto', forma)), 'text/plain'),
    }));
    return mostraFoglietto(r.titolo, corpo, forme);
  }
  // --- the certificate ---------------------------------------------------------------------------------------------------

  // The verdict stands below the sheet a moment after each drawing; a press opens the table.
  function sigilla() {
    clearTimeout(sigilla.attesa);
    sigilla.attesa = setTimeout(() => prova(() => {
      const c = chiedi('certificato');
      cerca('sigillo').hidden = !c;
      cerca('sigillo').textContent = c ? `${c.vero ? '✓' : '⚠'} ${c.verdetto}` : '';
      cerca('sigillo').classList.toggle('falso', Boolean(c) && !c.vero);
    }), 300);
  }
  function certificato() {
    const c = chiedi('certificato');
    if (!c) return;
    const teste = ['linea', 'disegnati', 'massimo', 'medio', 'mancanti', 'superflui'].map((k) => crea('th', { textContent: testi[k] }));
    const righe = c.righe.map((r) => crea('tr', {
      className: r.vera ? '' : 'falsa', onclick: () => {
        cerca('foglietto').close();
        const l = misura[0] * 250;
        vista = { x: r.peggio[0] - l / 2, y: r.peggio[1] - l * alto / largo / 2, l };
        inquadra();
      },
    }, crea('td', { textContent: r.linea + (r.doppia ? `, ${testi.doppia}` : '') }),
    ...r.misure.map((n, i) => crea('td', { textContent: n.toFixed(i === 0 ? 0 : 3) }))));
    const vere = cerca('ckCorretta');
    const pulsanti = c.vero || !vere || vere.checked ? [] : [crea('button', { type: 'button', textContent: testi.correggi, onclick: () => {
      cerca('foglietto').close();
      premi('ckCorretta');
    } })];
    mostraFoglietto(`${testi.certificato}: ${c.verdetto}`,
      [crea('div', { className: 't' }, crea('table', {}, crea('thead', {}, crea('tr', {}, ...teste)), crea('tbody', {}, ...righe)))], pulsanti);
  }

  function mostraFoglietto(titolo, corpo, pulsanti = []) {
    const f = cerca('foglietto');
    f.querySelector('h2').textContent = titolo;
    f.querySelector('span').replaceChildren(...pulsanti);
    f.querySelector('.corpo').replaceChildren(...corpo);
    if (!f.open) f.showModal();
    f.querySelector('.corpo').scrollTop = 0;
  }

  // --- places -----------------------------------------------------------------------------------------------------------

  function ascoltaLuoghi() {
    const casella = cerca('cerca'), lista = cerca('trovati');
    let trovati = [], scelto = 0;
    const mostra = () => {
      lista.replaceChildren(...trovati.map(([nome, dove], i) => crea('li', {
        role: 'option', 'aria-selected': String(i === scelto), onmousedown: (e) => e.preventDefault(), onclick: () => prendi(i),
      }, nome, crea('small', { textContent: dove }))));
      lista.hidden = !trovati.length;
      casella.setAttribute('aria-expanded', String(!lista.hidden));
    };
    const chiudi = () => {
      trovati = [];
      mostra();
    };
    const prendi = (i) => {
      const [nome, dove, lat, lon, meridiano] = trovati[i];
      for (const [campoDi, testo] of [['txtLAT', lat], ['txtLonG', lon], ['txtMeridiano', meridiano]]) chiama('scrivi', campoDi, testo);
      casella.value = `${nome}, ${dove}`;
      chiudi();
      dopo();
    };
    casella.addEventListener('focus', () => casella.select());
    casella.addEventListener('input', async () => {
      await conTabelle();
      trovati = casella.value.trim() ? chiedi('luoghi', casella.value) : [];
      scelto = 0;
      mostra();
    });
    casella.addEventListener('keydown', (e) => {
      if (!trovati.length) return;
      if (e.key === 'ArrowDown' || e.key === 'ArrowUp') scelto = (scelto + (e.key === 'ArrowDown' ? 1 : trovati.length - 1)) % trovati.length;
      else if (e.key === 'Enter') prendi(scelto);
      else if (e.key === 'Escape') chiudi();
      else return;
      e.preventDefault();
      mostra();
    });
    casella.addEventListener('blur', chiudi);
    cerca('luogo').hidden = false;
  }

  // --- the page's own buttons ---------------------------------------------------------------------------------------------

  function tema(scuro) {
    document.documentElement.dataset.tema = scuro ? 'scuro' : 'chiaro';
    cerca('tema').setAttribute('aria-pressed', scuro);
  }
  function ascoltaPagina() {
    const scuro = matchMedia('(prefers-color-scheme: dark)');
    scuro.addEventListener('change', () => tema(scuro.matches));
    cerca('tema').onclick = () => tema(document.documentElement.dataset.tema !== 'scuro');
    cerca('lingua').onchange = () => {
      chiama('lingua', lingua());
      costruisci();
      aggiorna();
      if (toccata) scriviIndirizzo();
    };
    cerca('esempi').onchange = (e) => {
      if (e.target.value) apri(e.target.value, false);
      e.target.value = '';
      scriviIndirizzo();
    };
    cerca('sigillo').onclick = certificato;
    cerca('apri').onclick = () => cerca('scegli').click();
    cerca('scegli').onchange = (e) => apriFile(e.target.files[0]);
    cerca('copia').onclick = async () => {
      const link = location.href.split('#')[0] + indirizzo();
      try {
        await navigator.clipboard.writeText(link);
        avvisa(testi.copiato);
      } catch {
        mostraFoglietto(testi.copia, [crea('input', { value: link, readOnly: true, onfocus: (f) => f.target.select() })]);
      }
    };
    const foglietto = cerca('foglietto');
    foglietto.querySelector('.chiudi').onclick = () => foglietto.close();
    foglietto.addEventListener('click', (e) => e.target === foglietto && foglietto.close());
    cerca('gruppi').addEventListener('submit', (e) => e.preventDefault());
    document.addEventListener('click', (e) => {
      if (!e.target.closest('#scarica')) cerca('scarica').open = false;
    });
    let sospeso = 0;
    addEventListener('dragenter', () => (cerca('lascia').hidden = ++sospeso === 0));
    addEventListener('dragleave', () => (cerca('lascia').hidden = --sospeso <= 0));
    addEventListener('dragover', (e) => e.preventDefault());
    addEventListener('drop', (e) => {
      e.preventDefault();
      sospeso = 0;
      cerca('lascia').hidden = true;
      apriFile(e.dataTransfer.files[0]);
    });
    addEventListener('hashchange', () => {
      if (!dallIndirizzo()) return;
      chiama('lingua', lingua());
      costruisci();
      aggiorna();
    });
  }

  // --- for scripts --------------------------------------------------------------------------------------------------------

  // Performs lines of an action script on the page's program and gives what it prints. A page that nobody touched yet
  // begins where a script begins: with a fresh program. A line that can't be done ends the run and is the error.
  async function perform(righe) {
    const tutte = (typeof righe === 'string' ? [righe] : [...righe]).flatMap((r) => String(r).split('\n'));
    if (tutte.some((r) => /cmdStati|cmdPlot/i.test(r))) await conTabelle();
    if (!toccata) chiama('avvia');
    toccata = true;
    prendiDetto();
    let motivo = '', fatte = 0;
    for (const una of tutte) {
      fatte += 1;
      motivo = chiama('esegui', una);
      if (motivo) break;
    }
    const stampato = prendiDetto();
    cerca('nome').textContent = '';
    aggiorna();
    scriviIndirizzo();
    if (motivo) throw Object.assign(new Error(`${fatte}: ${motivo}`), { printed: stampato });
    return stampato;
  }
  async function file(nome) {
    const percorso = String(nome).startsWith('/') ? String(nome) : CASA + nome;
    if (!modulo.FS.analyzePath(percorso).exists) throw new Error(`no file ${nome}`);
    return modulo.FS.readFile(percorso);
  }
  globalThis.ombrelia = Object.freeze({
    get ready() {
      return pronta;
    },
    perform,
    file,
  });

  // --- start ----------------------------------------------------------------------------------------------------------------

  async function avvia() {
    tema(matchMedia('(prefers-color-scheme: dark)').matches);
    const [wasm, piccoli] = await Promise.all([gonfia('modulo'), gonfia('dati')]);
    modulo = await globalThis.Modulo({ wasmBinary: wasm, stdout: (b) => b !== null && detto.push(b), stderr: () => {} });
    posa(JSON.parse(new TextDecoder().decode(piccoli)));
    modulo.FS.chdir(CASA);
    const lingue = chiedi('lingue');
    cerca('lingua').append(...lingue.map(([codice, nome]) => new Option(nome, codice)));
    const parlate = (navigator.languages ?? []).map((l) => l.slice(0, 2));
    cerca('lingua').value = parlate.find((p) => lingue.some(([codice]) => codice === p)) ?? 'en';
    const suo = dallIndirizzo();
    chiama('lingua', lingua());
    costruisci();
    ascoltaFoglio();
    ascoltaPagina();
    ascoltaLuoghi();
    if (suo) aggiorna();
    else apri(PRIMO, true);
    document.documentElement.dataset.tempo = Math.round(performance.now());  // to the first dial, milliseconds
    pronta = true;
    setTimeout(conTabelle, 200);
  }
  avvia().catch((errore) => {
    avvisa(`Ombrelia: ${errore.message}`);
    throw errore;
  });
})();
