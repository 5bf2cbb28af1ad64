// How light and fast the page is, measured in headless Chromium on this
// machine: the size of the built site, the time from opening the page to its
// first result, and the time of a recalculation as the user types (the
// calculation, its pictures and tables put in the page, and the next frame
// painted). Not a test: figures to read. Usage: node web/medir.mjs [SITIO].
import { createRequire } from 'node:module';
import { mkdtempSync, readdirSync, rmSync, statSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { servir } from './servir.mjs';

const sitio = resolve(process.argv[2] || 'build-web/sitio');
const puppeteer = createRequire(import.meta.url)('puppeteer-core');

function tamano(carpeta) {
  return readdirSync(carpeta).reduce((t, n) => {
    const r = join(carpeta, n);
    return t + (statSync(r).isDirectory() ? tamano(r) : statSync(r).size);
  }, 0);
}

const mediana = (xs) => [...xs].sort((a, b) => a - b)[Math.floor(xs.length / 2)];
const temporal = mkdtempSync(join(tmpdir(), 'vanta-medir-'));
const { servidor, direccion } = await servir(sitio, 0);
const navegador = await puppeteer.launch({
  executablePath: process.env.VANTA_CHROMIUM || '/usr/bin/chromium',
  headless: true,
  args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking',
    '--disable-component-update', '--disable-sync', `--user-data-dir=${temporal}`],
});
const pagina = await navegador.newPage();
await pagina.setViewport({ width: 1280, height: 800 });

const primeros = [];
for (let i = 0; i < 5; i++) {
  await pagina.goto(`${direccion}?ciclo=Diesel&rc=18&combustible=Gasoil&fr=0.8`);
  await pagina.waitForSelector('body[data-listo="si"]');
  primeros.push(await pagina.evaluate(() => Vanta.msPrimerResultado));
}

// Each keystroke in the compression ratio's box, timed from the event to the
// frame that shows its result.
const tiempos = await pagina.evaluate(async () => {
  const caja = document.getElementById('entrada-rc');
  const hasta = [];
  for (let i = 0; i < 40; i++) {
    const t0 = performance.now();
    caja.value = String(14 + (i % 10) * 0.5);
    caja.dispatchEvent(new Event('input', { bubbles: true }));
    await new Promise((r) => requestAnimationFrame(() => setTimeout(r, 0)));
    hasta.push(performance.now() - t0);
  }
  return { calculo: Calculo.tiempos.slice(-40), pintado: hasta };
});

console.log(`sitio: ${(tamano(sitio) / 1024).toFixed(0)} KiB (${sitio})`);
console.log(`primer resultado desde que se abre la página: mediana ${mediana(primeros).toFixed(0)} ms (${primeros.map((t) => t.toFixed(0)).join(', ')})`);
console.log(`recálculo al escribir, cálculo y página: mediana ${mediana(tiempos.calculo).toFixed(1)} ms, máximo ${Math.max(...tiempos.calculo).toFixed(1)} ms`);
console.log(`recálculo al escribir, hasta el cuadro pintado: mediana ${mediana(tiempos.pintado).toFixed(1)} ms, máximo ${Math.max(...tiempos.pintado).toFixed(1)} ms`);
await navegador.close();
servidor.close();
rmSync(temporal, { recursive: true, force: true });
