// Puts the page together: one file that opens from a disk, with module, style, script and data inside, and a policy that lets
// nothing else run.
//   node impagina.mjs MODULE.js MODULE.wasm ROOT OUT.html [ALPHABET.jhf…]
import { createHash } from 'node:crypto';
import { readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { basename, dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { deflateSync } from 'node:zlib';

const [colla, wasm, radice, uscita, ...alfabeti] = process.argv.slice(2);
const qui = dirname(fileURLToPath(import.meta.url));
const leggi = (...nomi) => readFileSync(join(...nomi), 'utf8');
const sgonfia = (byte) => deflateSync(byte, { level: 9 }).toString('base64');
const impronta = (testo) => `'sha256-${createHash('sha256').update(testo, 'utf8').digest('base64')}'`;

// Small files that the program finds in its folder.
const piccoli = {};
const dizionari = readdirSync(join(radice, 'data')).filter((nome) => /^DB.*\.txt$/.test(nome));
for (const nome of dizionari) piccoli[nome] = leggi(radice, 'data', nome);
for (const nome of readdirSync(join(radice, 'examples')).filter((n) => n.endsWith('.omb')).sort()) piccoli[nome] = leggi(radice, 'examples', nome);
for (const alfabeto of alfabeti) piccoli[basename(alfabeto)] = leggi(alfabeto);
// The page carries a smaller table of towns: all that are large, and the small ones where most who draw on walls live.
const ABITANTI = 20000, ABITANTI_VICINI = 4000;
const VICINI = new Set(['AT', 'BE', 'CH', 'DE', 'ES', 'FR', 'GB', 'IT', 'SI', 'SM']);
const luoghi = leggi(radice, 'data', 'luoghi.csv').split('\n').filter((riga) => {
  const campi = riga.split(';');
  return riga.startsWith('=') || Number(campi[6]) >= (VICINI.has(campi[2]) ? ABITANTI_VICINI : ABITANTI);
});

const pezzi = {
  STILE: leggi(qui, 'stile.css'),
  COLLA: readFileSync(colla, 'utf8').replaceAll('</script', '<\\/script'),
  PAGINA: leggi(qui, 'pagina.js').replaceAll('</script', '<\\/script'),
  DATI: sgonfia(Buffer.from(JSON.stringify(piccoli))),
  MONDO: sgonfia(readFileSync(join(radice, 'data', 'mondo.csv'))),
  LUOGHI: sgonfia(Buffer.from(luoghi.join('\n'))),
  WASM: sgonfia(readFileSync(wasm)),
  ICONA: `data:image/svg+xml;base64,${readFileSync(join(radice, 'data', 'ombrelia.svg')).toString('base64')}`,
};
pezzi.CSP = [
  "default-src 'none'",
  `script-src ${impronta(pezzi.COLLA)} ${impronta(pezzi.PAGINA)} 'wasm-unsafe-eval'`,
  `style-src ${impronta(pezzi.STILE)}`,
  'img-src data:',
  "base-uri 'none'",
  "form-action 'none'",
].join('; ');

const pagina = leggi(qui, 'ombrelia.html').replace(/@([A-Z]+)@/g, (tutto, nome) => pezzi[nome] ?? tutto);
const MASSIMO = 2.5e6;
if (Buffer.byteLength(pagina) > MASSIMO) throw new Error(`the page has ${Buffer.byteLength(pagina)} bytes, more than ${MASSIMO}`);
writeFileSync(uscita, pagina);
console.log(`${uscita}: ${Buffer.byteLength(pagina)} bytes`);
