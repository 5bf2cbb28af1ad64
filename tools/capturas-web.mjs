// The pictures of the web page for docs/: the page as it opens on a desktop
// (1280 x 800) and on a phone (390 x 844), the diagrams with the readout's
// cross, and a study. Usage, after ./vanta web --solo-construir:
//   node tools/capturas-web.mjs [SITIO] [CARPETA]
import { createRequire } from 'node:module';
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';

const raiz = new URL('..', import.meta.url).pathname;
const sitio = resolve(process.argv[2] || join(raiz, 'build-web/sitio'));
const carpeta = resolve(process.argv[3] || join(raiz, 'docs'));
const puppeteer = createRequire(join(raiz, 'web/package.json'))('puppeteer-core');
const { servir } = await import(join(raiz, 'web/servir.mjs'));

const temporal = mkdtempSync(join(tmpdir(), 'vanta-capturas-'));
const { servidor, direccion } = await servir(sitio, 0);
const navegador = await puppeteer.launch({
  executablePath: process.env.VANTA_CHROMIUM || '/usr/bin/chromium',
  headless: true,
  args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--hide-scrollbars', `--user-data-dir=${temporal}`],
});
const enlace = '?ciclo=Diesel&rc=18&combustible=Gasoil&fr=0.8';

async function pagina(ancho, alto, busqueda) {
  const p = await navegador.newPage();
  await p.setViewport({ width: ancho, height: alto });
  await p.goto(direccion + busqueda);
  await p.waitForSelector('body[data-listo="si"]');
  return p;
}

let p = await pagina(1280, 800, enlace);
await p.screenshot({ path: join(carpeta, 'web-1280x800.png') });
// The diagrams, the pointer on the expansion of p-V.
const caja = await p.$('.imagen[data-diagrama="0"]');
await p.evaluate(() => document.getElementById('titulo-diagramas').scrollIntoView());
const r = await caja.boundingBox();
await p.mouse.move(r.x + r.width * 0.3, r.y + r.height * 0.45);
await p.waitForFunction(() => document.getElementById('lectura-transformacion').textContent !== '—');
await p.screenshot({ path: join(carpeta, 'web-lectura-1280x800.png') });
await p.close();

p = await pagina(390, 844, enlace);
await p.screenshot({ path: join(carpeta, 'web-390x844.png') });
await p.evaluate(() => document.getElementById('resultados').scrollIntoView());
await p.screenshot({ path: join(carpeta, 'web-resultados-390x844.png') });
await p.close();

p = await pagina(1280, 800, `${enlace}#estudio`);
await p.evaluate(() => {
  const f = document.getElementById('form-estudio');
  f.elements.valores0.value = '12:22:0.5';
  f.elements.nombre1.value = 'fr';
  f.elements.nombre1.dispatchEvent(new Event('change'));
  f.elements.valores1.value = '0.6,0.7,0.8';
});
await p.click('#empezar-estudio');
await p.waitForFunction(() => !Estudio.corriendo && Estudio.puntos.length);
await p.evaluate(() => document.querySelector('#form-estudio .botones').scrollIntoView());
await p.screenshot({ path: join(carpeta, 'web-estudio-1280x800.png') });

await navegador.close();
servidor.close();
rmSync(temporal, { recursive: true, force: true });
console.log(`capturas en ${carpeta}`);
