// Writes data/mondo.csv, the outlines of the world's countries, from Natural Earth at 1:50 million (public domain) as the npm
// package world-atlas 2.0.2 brings it.
//
//   npm install --ignore-scripts world-atlas topojson-client        in a scratch folder
//   node tools/mondo.mjs scratch/node_modules > data/mondo.csv
//
// A line is name;latitude;longitude in degrees, north and East positive. The name is the country's with a number of the ring;
// the program takes the digits away again, so no country may have one in its name.
import { createRequire } from 'node:module';
import { readFileSync } from 'node:fs';
import { resolve } from 'node:path';

// Two decimals: on a dial of 2 m with an ortostilo of 0.3 m a degree is 5 mm below the tip and some 60 mm at the edge of the
// plate, so half a hundredth is nowhere above 0.3 mm, below a chisel's cut and below what 1:50 million knows.
const DECIMALI = 2;
// A dial joins two points by a straight line, which is a great circle: longer borders get points between, so that a
// border along a parallel stays one.
const LATO_MASSIMO = 1;  // degrees

// English name of the data: the program's own.
const NOMI = {
  'Afghanistan': 'Afghanistan', 'Albania': 'Albania', 'Algeria': 'Algeria', 'American Samoa': 'Samoa Americane',
  'Andorra': 'Andorra', 'Angola': 'Angola', 'Anguilla': 'Anguilla', 'Antarctica': 'Antartide',
  'Antigua and Barb.': 'Antigua e Barbuda', 'Argentina': 'Argentina', 'Armenia': 'Armenia', 'Aruba': 'Aruba',
  'Ashmore and Cartier Is.': 'Isole Ashmore e Cartier', 'Australia': 'Australia', 'Austria': 'Austria',
  'Azerbaijan': 'Azerbaigian', 'Bahamas': 'Bahamas', 'Bahrain': 'Bahrein', 'Bangladesh': 'Bangladesh',
  'Barbados': 'Barbados', 'Belarus': 'Bielorussia', 'Belgium': 'Belgio', 'Belize': 'Belize', 'Benin': 'Benin',
  'Bermuda': 'Bermuda', 'Bhutan': 'Bhutan', 'Bolivia': 'Bolivia', 'Bosnia and Herz.': 'Bosnia ed Erzegovina',
  'Botswana': 'Botswana', 'Br. Indian Ocean Ter.': "Territorio britannico dell'Oceano Indiano", 'Brazil': 'Brasile',
  'British Virgin Is.': 'Isole Vergini Britanniche', 'Brunei': 'Brunei', 'Bulgaria': 'Bulgaria',
  'Burkina Faso': 'Burkina Faso', 'Burundi': 'Burundi', 'Cabo Verde': 'Capo Verde', 'Cambodia': 'Cambogia',
  'Cameroon': 'Camerun', 'Canada': 'Canada', 'Cayman Is.': 'Isole Cayman',
  'Central African Rep.': 'Repubblica Centrafricana', 'Chad': 'Ciad', 'Chile': 'Cile', 'China': 'Cina',
  'Colombia': 'Colombia', 'Comoros': 'Comore', 'Congo': 'Congo', 'Cook Is.': 'Isole Cook', 'Costa Rica': 'Costa Rica',
  "Côte d'Ivoire": "Costa d'Avorio", 'Croatia': 'Croazia', 'Cuba': 'Cuba', 'Curaçao': 'Curaçao', 'Cyprus': 'Cipro',
  'Czechia': 'Repubblica Ceca', 'Dem. Rep. Congo': 'Repubblica Democratica del Congo', 'Denmark': 'Danimarca',
  'Djibouti': 'Gibuti', 'Dominica': 'Dominica', 'Dominican Rep.': 'Repubblica Dominicana', 'Ecuador': 'Ecuador',
  'Egypt': 'Egitto', 'El Salvador': 'El Salvador', 'Eq. Guinea': 'Guinea Equatoriale', 'Eritrea': 'Eritrea',
  'Estonia': 'Estonia', 'Ethiopia': 'Etiopia', 'Faeroe Is.': 'Isole Faroe', 'Falkland Is.': 'Isole Falkland',
  'Fiji': 'Figi', 'Finland': 'Finlandia', 'Fr. Polynesia': 'Polinesia Francese',
  'Fr. S. Antarctic Lands': 'Terre Australi Francesi', 'France': 'Francia', 'Gabon': 'Gabon', 'Gambia': 'Gambia',
  'Georgia': 'Georgia', 'Germany': 'Germania', 'Ghana': 'Ghana', 'Greece': 'Grecia', 'Greenland': 'Groenlandia',
  'Grenada': 'Grenada', 'Guam': 'Guam', 'Guatemala': 'Guatemala', 'Guernsey': 'Guernsey', 'Guinea': 'Guinea',
  'Guinea-Bissau': 'Guinea-Bissau', 'Guyana': 'Guyana', 'Haiti': 'Haiti',
  'Heard I. and McDonald Is.': 'Isole Heard e McDonald', 'Honduras': 'Honduras', 'Hong Kong': 'Hong Kong',
  'Hungary': 'Ungheria', 'Iceland': 'Islanda', 'India': 'India', 'Indian Ocean Ter.': "Territori dell'Oceano Indiano",
  'Indonesia': 'Indonesia', 'Iran': 'Iran', 'Iraq': 'Iraq', 'Ireland': 'Irlanda', 'Isle of Man': 'Isola di Man',
  'Israel': 'Israele', 'Italy': 'Italia', 'Jamaica': 'Giamaica', 'Japan': 'Giappone', 'Jersey': 'Jersey',
  'Jordan': 'Giordania', 'Kazakhstan': 'Kazakistan', 'Kenya': 'Kenya', 'Kiribati': 'Kiribati', 'Kosovo': 'Kosovo',
  'Kuwait': 'Kuwait', 'Kyrgyzstan': 'Kirghizistan', 'Laos': 'Laos', 'Latvia': 'Lettonia', 'Lebanon': 'Libano',
  'Lesotho': 'Lesotho', 'Liberia': 'Liberia', 'Libya': 'Libia', 'Liechtenstein': 'Liechtenstein',
  'Lithuania': 'Lituania', 'Luxembourg': 'Lussemburgo', 'Macao': 'Macao', 'Macedonia': 'Macedonia del Nord',
  'Madagascar': 'Madagascar', 'Malawi': 'Malawi', 'Malaysia': 'Malesia', 'Maldives': 'Maldive', 'Mali': 'Mali',
  'Malta': 'Malta', 'Marshall Is.': 'Isole Marshall', 'Mauritania': 'Mauritania', 'Mauritius': 'Mauritius',
  'Mexico': 'Messico', 'Micronesia': 'Micronesia', 'Moldova': 'Moldavia', 'Monaco': 'Monaco', 'Mongolia': 'Mongolia',
  'Montenegro': 'Montenegro', 'Montserrat': 'Montserrat', 'Morocco': 'Marocco', 'Mozambique': 'Mozambico',
  'Myanmar': 'Birmania', 'N. Cyprus': 'Cipro del Nord', 'N. Mariana Is.': 'Marianne Settentrionali',
  'Namibia': 'Namibia', 'Nauru': 'Nauru', 'Nepal': 'Nepal', 'Netherlands': 'Paesi Bassi',
  'New Caledonia': 'Nuova Caledonia', 'New Zealand': 'Nuova Zelanda', 'Nicaragua': 'Nicaragua', 'Niger': 'Niger',
  'Nigeria': 'Nigeria', 'Niue': 'Niue', 'Norfolk Island': 'Isola Norfolk', 'North Korea': 'Corea del Nord',
  'Norway': 'Norvegia', 'Oman': 'Oman', 'Pakistan': 'Pakistan', 'Palau': 'Palau', 'Palestine': 'Palestina',
  'Panama': 'Panama', 'Papua New Guinea': 'Papua Nuova Guinea', 'Paraguay': 'Paraguay', 'Peru': 'Perù',
  'Philippines': 'Filippine', 'Pitcairn Is.': 'Isole Pitcairn', 'Poland': 'Polonia', 'Portugal': 'Portogallo',
  'Puerto Rico': 'Porto Rico', 'Qatar': 'Qatar', 'Romania': 'Romania', 'Russia': 'Russia', 'Rwanda': 'Ruanda',
  'S. Geo. and the Is.': 'Georgia del Sud e Sandwich Australi', 'S. Sudan': 'Sudan del Sud',
  'Saint Helena': "Sant'Elena", 'Saint Lucia': 'Santa Lucia', 'Samoa': 'Samoa', 'San Marino': 'San Marino',
  'Saudi Arabia': 'Arabia Saudita', 'Senegal': 'Senegal', 'Serbia': 'Serbia', 'Seychelles': 'Seychelles',
  'Siachen Glacier': 'Ghiacciaio Siachen', 'Sierra Leone': 'Sierra Leone', 'Singapore': 'Singapore',
  'Sint Maarten': 'Sint Maarten', 'Slovakia': 'Slovacchia', 'Slovenia': 'Slovenia', 'Solomon Is.': 'Isole Salomone',
  'Somalia': 'Somalia', 'Somaliland': 'Somaliland', 'South Africa': 'Sudafrica', 'South Korea': 'Corea del Sud',
  'Spain': 'Spagna', 'Sri Lanka': 'Sri Lanka', 'St-Barthélemy': 'Saint-Barthélemy', 'St-Martin': 'Saint-Martin',
  'St. Kitts and Nevis': 'Saint Kitts e Nevis', 'St. Pierre and Miquelon': 'Saint-Pierre e Miquelon',
  'St. Vin. and Gren.': 'Saint Vincent e Grenadine', 'Sudan': 'Sudan', 'Suriname': 'Suriname', 'Sweden': 'Svezia',
  'Switzerland': 'Svizzera', 'Syria': 'Siria', 'São Tomé and Principe': 'São Tomé e Príncipe', 'Taiwan': 'Taiwan',
  'Tajikistan': 'Tagikistan', 'Tanzania': 'Tanzania', 'Thailand': 'Thailandia', 'Timor-Leste': 'Timor Est',
  'Togo': 'Togo', 'Tonga': 'Tonga', 'Trinidad and Tobago': 'Trinidad e Tobago', 'Tunisia': 'Tunisia',
  'Turkey': 'Turchia', 'Turkmenistan': 'Turkmenistan', 'Turks and Caicos Is.': 'Isole Turks e Caicos',
  'U.S. Virgin Is.': 'Isole Vergini Americane', 'Uganda': 'Uganda', 'Ukraine': 'Ucraina',
  'United Arab Emirates': 'Emirati Arabi Uniti', 'United Kingdom': 'Regno Unito',
  'United States of America': "Stati Uniti d'America", 'Uruguay': 'Uruguay', 'Uzbekistan': 'Uzbekistan',
  'Vanuatu': 'Vanuatu', 'Vatican': 'Città del Vaticano', 'Venezuela': 'Venezuela', 'Vietnam': 'Vietnam',
  'W. Sahara': 'Sahara Occidentale', 'Wallis and Futuna Is.': 'Wallis e Futuna', 'Yemen': 'Yemen', 'Zambia': 'Zambia',
  'Zimbabwe': 'Zimbabwe', 'eSwatini': 'Eswatini', 'Åland': 'Isole Åland',
};

const pacchetti = resolve(process.argv[2]);
const { feature } = createRequire(import.meta.url)(`${pacchetti}/topojson-client`);
const atlante = JSON.parse(readFileSync(`${pacchetti}/world-atlas/countries-50m.json`, 'utf8'));

// The edges that only close a flat map, along its left and right side and along the pole, are no coasts.
const suMargine = ([lonA, latA], [lonB, latB]) =>
  (Math.abs(lonA) > 179.99 && Math.abs(lonB) > 179.99) || (latA < -89.9 && latB < -89.9);

// A ring as the pieces between such edges; a ring without one stays whole and closed.
function pezzi(anello) {
  const tutti = [[anello[0]]];
  for (let i = 1; i < anello.length; i++) {
    if (suMargine(anello[i - 1], anello[i])) tutti.push([]);
    tutti.at(-1).push(anello[i]);
  }
  // The ring may have begun in the middle of a piece.
  if (tutti.length > 1) tutti.unshift([...tutti.pop(), ...tutti.shift().slice(1)]);
  return tutti.filter((p) => p.length > 1);
}

// Points no further apart than LATO_MASSIMO, in degrees of the map. A step over the date line is taken the short way.
function infittiti(pezzo) {
  const punti = [pezzo[0]];
  for (let i = 1; i < pezzo.length; i++) {
    const [lonA, latA] = pezzo[i - 1], [lonB, latB] = pezzo[i];
    const dLon = ((lonB - lonA + 540) % 360) - 180, dLat = latB - latA;
    const n = Math.max(1, Math.ceil(Math.max(Math.abs(dLon), Math.abs(dLat)) / LATO_MASSIMO));
    for (let k = 1; k < n; k++) punti.push([((lonA + (dLon * k) / n + 540) % 360) - 180, latA + (dLat * k) / n]);
    punti.push(pezzo[i]);
  }
  return punti;
}

const paesi = feature(atlante, atlante.objects.countries).features.map((f) => {
  const nome = NOMI[f.properties.name];
  if (!nome || /[0-9;]/.test(nome)) throw new Error(`no name for ${f.properties.name}`);
  const g = f.geometry;
  return { nome, poligoni: g.type === 'Polygon' ? [g.coordinates] : g.coordinates };
});
paesi.sort((a, b) => a.nome.localeCompare(b.nome, 'it'));

const cifre = (v) => String(Number(v.toFixed(DECIMALI)) || 0);
const righe = [];
for (const { nome, poligoni } of paesi) {
  let numero = 0;
  for (const anello of poligoni.flat()) {
    for (const pezzo of pezzi(anello)) {
      const testi = infittiti(pezzo).map(([lon, lat]) => `${cifre(lat)};${cifre(lon)}`);
      const diversi = testi.filter((t, i) => i === 0 || t !== testi[i - 1]);
      if (diversi.length < 2) continue;  // an islet smaller than a hundredth of a degree
      numero++;
      for (const t of diversi) righe.push(`${nome}${numero};${t}`);
    }
  }
}
process.stdout.write(righe.join('\n') + '\n');
