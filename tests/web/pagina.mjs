// The web page driven in headless Chromium as a user drives it, against the
// vanta program built beside it: the same reports, JSON, messages, study
// tables, page and validation for the same inputs; the readout under the
// pointer; the comparison kept and carried in a file; the page opened from a
// folder; the narrowest screen. Usage: node pagina.mjs SITIO VANTA. Exit 77
// (skipped) when the site has not been built.
import { execFileSync, spawnSync } from 'node:child_process';
import { existsSync, mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { pathToFileURL } from 'node:url';

const [sitio, vanta] = process.argv.slice(2).map((a) => a && resolve(a));
const requerir = createRequire(new URL('../../web/package.json', import.meta.url));
if (!sitio || !existsSync(join(sitio, 'index.html')) || !existsSync(join(sitio, 'vanta.js'))) {
  console.log(`pagina_web: no está construida la página (${sitio}); ./vanta test la construye`);
  process.exit(77);
}
const puppeteer = requerir('puppeteer-core');
const fflate = requerir('fflate');
const { servir } = await import('../../web/servir.mjs');

// ---- The program --------------------------------------------------------------------

function opcionesDe(busqueda) {
  return [...new URLSearchParams(busqueda)].flatMap(([k, v]) => [`--${k}`, v]);
}

function calcular(busqueda, ...mas) {
  const r = spawnSync(vanta, ['calcular', ...opcionesDe(busqueda), ...mas], { encoding: 'utf8', env: { ...process.env, QT_QPA_PLATFORM: 'offscreen' } });
  return { salida: r.stdout, errores: r.stderr.split('\n').filter((l) => l), estado: r.status };
}

// ---- The browser -----------------------------------------------------------------------

const temporal = mkdtempSync(join(tmpdir(), 'vanta-web-'));
const { servidor, direccion } = await servir(sitio, 0);
const navegador = await puppeteer.launch({
  executablePath: process.env.VANTA_CHROMIUM || '/usr/bin/chromium',
  headless: true,
  args: ['--no-sandbox', '--disable-gpu', '--no-first-run', '--disable-background-networking',
    '--disable-component-update', '--disable-sync', `--user-data-dir=${join(temporal, 'perfil')}`],
});
const descargas = join(temporal, 'descargas');
const erroresPagina = [];

async function nuevaPagina(contexto = navegador.defaultBrowserContext(), ancho = 1280, alto = 800) {
  const p = await contexto.newPage();
  // A machine busy with other builds may take its time.
  p.setDefaultTimeout(90000);
  p.on('pageerror', (e) => erroresPagina.push(e.message));
  await p.setViewport({ width: ancho, height: alto });
  return p;
}

await (await navegador.target().createCDPSession()).send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: descargas });

const pagina = await nuevaPagina();

async function abrir(busqueda, p = pagina, base = direccion) {
  await p.goto(`${base}${busqueda ? `?${busqueda}` : ''}`);
  await p.waitForSelector('body[data-listo="si"]');
  return p;
}

// The JSON follows the calculation when the typing pauses.
async function texto(p, selector) {
  if (selector === '#json') await p.waitForSelector('#json[data-listo="si"]');
  return p.$eval(selector, (e) => e.textContent);
}

async function descargado(nombre, accion) {
  const archivo = join(descargas, nombre);
  rmSync(archivo, { force: true });
  await accion();
  for (let i = 0; i < 200 && !existsSync(archivo); i++) await new Promise((r) => setTimeout(r, 50));
  await new Promise((r) => setTimeout(r, 100));
  return readFileSync(archivo);
}

// ---- Checks ------------------------------------------------------------------------------

const comprobaciones = [];
const comprobar = (nombre, f) => comprobaciones.push({ nombre, f });

function igual(obtenido, esperado, que) {
  if (obtenido === esperado) return;
  const a = String(obtenido).split('\n'), b = String(esperado).split('\n');
  const i = a.findIndex((l, k) => l !== b[k]);
  throw new Error(`${que}: difiere en la línea ${i + 1}:\n  página:   ${JSON.stringify(a[i])}\n  programa: ${JSON.stringify(b[i])}`);
}

function cierto(condicion, que) {
  if (!condicion) throw new Error(que);
}

// Full-precision figures: the browser's exp, log and pow (musl's, in exact
// WebAssembly arithmetic) and glibc's (built for fused multiply-add, chosen by
// the processor) differ in the last bit on a few arguments in a thousand. The
// keys, their order, the texts and the counts must be the same; a number, the
// same to 1e-9 of its size. Texts that round (reports, labels) must be the
// same characters.
const cifras = { todas: 0, distintas: 0 };
function mismasCifras(a, b) {
  if (typeof a !== 'number' || typeof b !== 'number') return a === b;
  cifras.todas++;
  if (a === b) return true;
  cifras.distintas++;
  return Math.abs(a - b) <= 1e-9 * Math.max(Math.abs(a), Math.abs(b));
}

function jsonIgual(pagina, programa, que) {
  const a = JSON.parse(pagina), b = JSON.parse(programa);
  igual(Object.keys(a).join(','), Object.keys(b).join(','), `las claves de ${que}`);
  for (const k of Object.keys(b)) {
    const [x, y] = [a[k], b[k]];
    if (Array.isArray(y)) igual(JSON.stringify(x), JSON.stringify(y), `${k} de ${que}`);
    else cierto(mismasCifras(x, y), `${k} de ${que}: ${x} en la página, ${y} en el programa`);
  }
  cierto(pagina.endsWith('}\n'), `${que} no acaba como el del programa`);
}

// A CSV whose figures are full-precision numbers: the same lines and fields,
// the numbers as the JSON's.
function csvIgual(pagina, programa, que) {
  const a = pagina.split('\r\n'), b = programa.split('\r\n');
  igual(String(a.length), String(b.length), `las líneas de ${que}`);
  igual(a[0], b[0], `la cabecera de ${que}`);
  const separador = b[0].includes(';') ? ';' : ',';
  const numero = (t) => Number(separador === ';' ? t.replace(',', '.') : t);
  a.forEach((linea, i) => {
    const x = linea.split(separador), y = b[i].split(separador);
    cierto(x.length === y.length && x.every((c, k) => c === y[k] || (c !== '' && mismasCifras(numero(c), numero(y[k])))),
      `la línea ${i + 1} de ${que}:\n  página:   ${linea}\n  programa: ${b[i]}`);
  });
}

const kCasos = [
  '',
  'ciclo=Diesel&rc=18&combustible=Gasoil&fr=0.8',
  'ciclo=Mixto&pmax=6000000&combustible=GLP-Propano',
  'ciclo=Mixto&proporcion-vcte=30&combustible=Etanol',
  'formula=7,16,0,0,0&entalpia-formacion=-187800&fr=1.1&cilindrada=500&p1=90000&t1=330',
  'masa=84,0.5,1,0.3&masa-molecular=0.2&entalpia-formacion=-250000&ciclo=Mixto&proporcion-vcte=60',
  'temperatura-ambiente=320&humedad=60&compresion=politropica&n-compresion=1,35&expansion=variable',
  'combustible=Metanol&lambda=1.2&ciclo=Diesel&rc=20&compresion=variable&expansion=politropica&n-expansion=1.3',
  'combustible=GLP-Butano&fr=1.25&humedad=100',
  'rc=8.5&combustible=GLP-Etano&compresion=variable',
  'presion-ambiente=90000&ciclo=Diesel&humedad=47,5&fr=0,7&rc=16,5',
  'ciclo=Mixto&compresion=politropica&expansion=politropica&pmax=7000000',
  'ciclo=Mixto&pmax=50000000&rpm=3000',
];

comprobar('el cálculo por defecto y doce más dan el informe y el JSON de vanta calcular', async () => {
  for (const caso of kCasos) {
    await abrir(caso);
    const programa = calcular(caso);
    cierto(programa.estado === 0, `vanta calcular ${caso} sale con ${programa.estado}`);
    const informe = await texto(pagina, '#informe');
    const potencia = programa.salida.indexOf('r.p.m. = ');
    igual(informe, potencia < 0 ? programa.salida : programa.salida.slice(0, potencia), `el informe de «${caso}»`);
    jsonIgual(await texto(pagina, '#json'), calcular(caso, '--json').salida, `el JSON de «${caso}»`);
    const avisos = await pagina.$$eval('#avisos p.aviso', (ps) => ps.map((p) => `aviso: ${p.textContent}`));
    igual(avisos.join('\n'), programa.errores.join('\n'), `los avisos de «${caso}»`);
    if (potencia >= 0) {
      const cifras = await texto(pagina, '#cifras');
      const [, w, cv] = programa.salida.match(/Potencia = (.*) W = (.*) CV/);
      cierto(cifras.includes(`${w.trim()} W`) && cifras.includes(`${cv.trim()} CV`), `la potencia de «${caso}»: ${cifras}`);
    }
    cierto(new URL(pagina.url()).search === (caso ? `?${caso}` : ''), `la dirección de «${caso}» cambia a ${pagina.url()}`);
  }
});

comprobar('una entrada rechazada da los mensajes de vanta calcular, y la dirección sigue a lo que se escribe', async () => {
  for (const caso of ['rc=abc', 'temperatura-ambiente=-5', 'formula=7,x,0,0,0&fr=1', 'lambda=0']) {
    await abrir(caso);
    const programa = calcular(caso);
    const mensajes = await pagina.$$eval('#mensajes p:not(.etapa)', (ps) => ps.map((p) => `vanta calcular: ${p.textContent}`));
    igual(mensajes.join('\n'), programa.errores.join('\n'), `los mensajes de «${caso}»`);
    jsonIgual(await texto(pagina, '#json'), calcular(caso, '--json').salida, `el JSON de «${caso}»`);
    igual(await texto(pagina, '#informe'), '', `el informe de «${caso}»`);
  }
  // What the page refuses on its own: a formula of four numbers, a cycle that
  // is not one of the three (the command line refuses them as usage errors).
  await abrir('formula=7,16,0,0&ciclo=Wankel');
  cierto((await texto(pagina, '#mensajes')).includes('lleva cinco números'), 'la fórmula de cuatro números pasa');
  cierto(await pagina.$('.campo[data-entrada="formula"].con-fallo'), 'la fórmula no se señala');
  cierto(await pagina.$('fieldset[data-etapa="combustible"].con-fallo'), 'la etapa del combustible no se señala');

  await abrir('ciclo=Diesel');
  await pagina.click('#entrada-rc', { clickCount: 3 });
  await pagina.keyboard.type('0,5');
  const mensaje = calcular('ciclo=Diesel&rc=0,5').errores.map((l) => l.replace('vanta calcular: ', ''));
  igual(await pagina.$$eval('#mensajes p:not(.etapa)', (ps) => ps.map((p) => p.textContent).join('\n')), mensaje.join('\n'), 'el mensaje al escribir');
  cierto(pagina.url().endsWith('?ciclo=Diesel&rc=0,5'), `la dirección al escribir es ${pagina.url()}`);
  await pagina.keyboard.press('Backspace');
  await pagina.keyboard.press('Backspace');
  await pagina.keyboard.press('Backspace');
  await pagina.keyboard.type('19');
  igual(await texto(pagina, '#informe'), calcular('ciclo=Diesel&rc=19').salida, 'el informe tras corregir');
  cierto(await pagina.$eval('#mensajes', (m) => m.hidden), 'los mensajes siguen a la vista');
  await pagina.select('#entrada-ciclo', 'Otto');
  cierto(pagina.url().endsWith('?rc=19'), `la dirección tras elegir Otto es ${pagina.url()}`);
});

comprobar('la lectura sigue al puntero y la cruz está en los cuatro diagramas', async () => {
  await abrir('');
  const e = JSON.parse(await texto(pagina, '#json'));
  const caja = await pagina.$('.imagen[data-diagrama="0"] svg');
  await caja.scrollIntoView();
  const r = await caja.boundingBox();
  // The scale of p-V: 8 % of each range beyond the cycle.
  const dV = e.V1 - e.V2, dP = e.PresionMaxima - e.p1;
  const X = (V) => r.x + ((V - (e.V2 - 0.08 * dV)) / (1.16 * dV)) * r.width;
  const Y = (p) => r.y + ((e.PresionMaxima + 0.08 * dP - p) / (1.16 * dP)) * r.height;
  const lectura = async () => Object.fromEntries(await pagina.$$eval('#lectura dd', (ds) => ds.map((d) => [d.id || d.firstElementChild.id, d.textContent])));
  const numero = (t) => parseFloat(t.replace(/ /g, ''));

  await pagina.mouse.move(X(e.V2) - 4, Y(e.p1));
  await pagina.waitForFunction(() => document.getElementById('lectura-transformacion').textContent !== '—');
  let l = await lectura();
  igual(l['lectura-transformacion'], 'Combustión a v = cte.', 'bajo el estado 2');
  cierto(Math.abs(numero(l['lectura-T']) - e.T2) < 0.006 && Math.abs(numero(l['lectura-p']) - e.p2) < 0.6, `bajo el estado 2 se lee ${JSON.stringify(l)}`);
  igual(l['lectura-V'], '10.000 c.c.', 'el volumen bajo el estado 2');
  const cruces = await pagina.$$eval('.diagramas g.transitoria', (gs) => gs.map((g) => g.querySelectorAll('path').length));
  igual(cruces.join(','), '2,2,2,2', 'las líneas de las cruces');

  const V = (e.V1 + e.V2) / 2;
  await pagina.mouse.move(X(V), Y(e.p1));
  await pagina.waitForFunction(() => document.getElementById('lectura-transformacion').textContent === 'Compresión adiabática');
  l = await lectura();
  cierto(Math.abs(numero(l['lectura-V']) - V * 1e6) < 0.5, `el volumen a media carrera: ${l['lectura-V']}`);
  const pCompresion = e.p1 * (e.V1 / V) ** e.GammaMedioCompresion;
  cierto(Math.abs(numero(l['lectura-p']) / pCompresion - 1) < 0.01, `la presión a media carrera: ${l['lectura-p']} frente a ${pCompresion}`);

  // With the keyboard: the arrows move the point read.
  await pagina.focus('.imagen[data-diagrama="1"]');
  await pagina.keyboard.press('ArrowRight');
  const antes = (await lectura())['lectura-V'];
  for (let i = 0; i < 10; i++) await pagina.keyboard.press('ArrowRight');
  cierto((await lectura())['lectura-V'] !== antes, 'las flechas no mueven la lectura');
});

async function estudioEnPagina(p, variar, salidas, espanol) {
  await p.evaluate((variar, salidas, espanol) => {
    location.hash = '#estudio';
    const f = document.getElementById('form-estudio');
    variar.forEach(([nombre, valores], i) => {
      f.elements[`nombre${i}`].value = nombre;
      f.elements[`nombre${i}`].dispatchEvent(new Event('change'));
      const e = entrada(nombre);
      if (e.valores.length) f.querySelectorAll(`.elecciones[data-i="${i}"] input`).forEach((m) => { m.checked = valores.split(',').includes(m.value); });
      else f.elements[`valores${i}`].value = valores;
    });
    if (variar.length < 2) f.elements.nombre1.value = '';
    f.querySelectorAll('input[name="salida"]').forEach((c) => { c.checked = salidas.split(',').includes(c.value); });
    f.elements.dialecto.value = espanol ? 'es' : 'rfc';
  }, variar, salidas, espanol);
  await p.click('#empezar-estudio');
  await p.waitForFunction(() => !Estudio.corriendo && Estudio.info, { timeout: 120000 });
  return descargado('estudio.csv', () => p.click('#descargar-csv'));
}

function estudioPrograma(busqueda, variar, salidas, espanol) {
  const args = ['estudio', ...opcionesDe(busqueda), ...variar.flatMap(([n, v]) => ['--variar', `${n}=${v}`]), '--salidas', salidas];
  if (espanol) args.push('--csv-es');
  return spawnSync(vanta, args, { encoding: 'utf8' }).stdout;
}

comprobar('un estudio en su trabajador da la tabla de vanta estudio, y se cancela', async () => {
  const casos = [
    ['ciclo=Diesel&combustible=Gasoil', [['rc', '14:20:1'], ['fr', '0.7,0.8']], 'rendimiento,p3,t3', false],
    ['ciclo=Mixto&rpm=2500', [['combustible', 'Gasolina,Gasoil,Metanol'], ['rc', '8;9,5']], 'wciclo,consumo-kwh,potencia-cv', true],
    ['', [['rc', '0.5,1,8']], 'rendimiento', false],
  ];
  for (const [base, variar, salidas, espanol] of casos) {
    await abrir(`${base}#estudio`);
    const csv = (await estudioEnPagina(pagina, variar, salidas, espanol)).toString('utf8');
    csvIgual(csv, estudioPrograma(base, variar, salidas, espanol), `el estudio ${JSON.stringify(variar)}`);
  }
  await abrir('');
  await pagina.evaluate(() => { location.hash = '#estudio'; });
  await pagina.evaluate(() => {
    const f = document.getElementById('form-estudio');
    f.elements.nombre0.value = 'rc';
    f.elements.valores0.value = '6:30:0.0005';
    f.elements.nombre1.value = '';
  });
  await pagina.click('#empezar-estudio');
  await pagina.waitForFunction(() => Estudio.puntos.length > 0);
  await pagina.click('#cancelar-estudio');
  await pagina.waitForFunction(() => !Estudio.corriendo);
  const { hechos, total, aviso } = await pagina.evaluate(() => ({ hechos: Estudio.filas.length, total: Estudio.info.puntos, aviso: document.getElementById('progreso-estudio').textContent }));
  cierto(hechos > 0 && hechos < total && aviso.includes('Cancelado'), `la cancelación: ${hechos} de ${total}, «${aviso}»`);
});

comprobar('la comparación se guarda en el navegador, se exporta y se importa', async () => {
  await abrir('');
  await pagina.evaluate(() => localStorage.clear());
  for (const caso of ['ciclo=Otto&rc=9', 'ciclo=Diesel&rc=18&combustible=Gasoil']) {
    await abrir(caso);
    await pagina.click('#anadir-comparacion');
  }
  // One that gives no calculation, from the comparison's own form.
  await abrir('ciclo=Mixto&rc=0.5#comparacion');
  await pagina.click('#form-comparacion button[type="submit"]');
  await pagina.reload();
  await pagina.waitForSelector('body[data-listo="si"]');
  const nombres = await pagina.$$eval('#lista-comparacion .nombre', (ns) => ns.map((n) => n.textContent));
  igual(nombres.join(' | '), 'Otto, Gasolina, rc 9 | Diesel, Gasoil, rc 18 | Mixto, Gasolina, rc 0.5', 'los cálculos guardados');
  igual(String((await pagina.$$('#figuras-comparacion svg')).length), '4', 'las figuras de la comparación');
  const fila = await pagina.$$eval('#tabla-comparacion tr', (trs) => trs.map((t) => [...t.children].map((c) => c.textContent).join(' | ')));
  cierto(fila.some((f) => f.startsWith('Ciclo | Otto | Diesel')), `la tabla: ${fila.join('\n')}`);
  cierto(await texto(pagina, '#mensajes-comparacion').then((m) => m.includes('«Mixto, Gasolina, rc 0.5»')), 'el cálculo sin resultado no se dice');
  const rendimientos = fila.find((f) => f.startsWith('Rendimiento'));
  cierto(rendimientos && rendimientos.includes(JSON.parse(calcular('ciclo=Otto&rc=9', '--json').salida).Rendimiento.toFixed(3)), `el rendimiento: ${rendimientos}`);

  const exportado = await descargado('comparacion-vanta.json', () => pagina.click('#exportar-comparacion'));
  // Six at most.
  for (let i = 0; i < 4; i++) await pagina.click('#form-comparacion button[type="submit"]');
  igual(String((await pagina.$$('#lista-comparacion li')).length), '6', 'los cálculos tras añadir cuatro más');
  cierto((await texto(pagina, '#mensajes-comparacion')).includes('tiene ya 6 cálculos'), 'el séptimo no se rechaza');
  const otro = await navegador.createBrowserContext();
  const p2 = await nuevaPagina(otro);
  await abrir('#comparacion', p2);
  igual(String((await p2.$$('#lista-comparacion li')).length), '0', 'un navegador nuevo sin comparación');
  writeFileSync(join(temporal, 'comparacion.json'), exportado);
  await (await p2.$('#importar-comparacion')).uploadFile(join(temporal, 'comparacion.json'));
  await p2.waitForFunction(() => document.querySelectorAll('#lista-comparacion li').length === 3);
  writeFileSync(join(temporal, 'otra.json'), '{"no": "es"}');
  await (await p2.$('#importar-comparacion')).uploadFile(join(temporal, 'otra.json'));
  await p2.waitForFunction(() => document.getElementById('mensajes-comparacion').textContent.includes('no es una comparación'));
  await otro.close();
});

comprobar('el informe y la página HTML con sus imágenes se descargan como los escribe vanta', async () => {
  const caso = 'ciclo=Diesel&rc=17&combustible=Gasoil';
  await abrir(caso);
  const informe = await descargado('informe.txt', () => pagina.click('#descargar-informe'));
  igual(informe.toString('utf8'), calcular(caso).salida.replace(/\r\n$/, ''), 'el informe descargado');
  const zip = fflate.unzipSync(new Uint8Array(await descargado('pagina-vanta.zip', () => pagina.click('#descargar-pagina'))));
  const carpeta = join(temporal, 'html');
  execFileSync(vanta, ['calcular', ...opcionesDe(caso), '--html', carpeta], { stdio: 'pipe', env: { ...process.env, QT_QPA_PLATFORM: 'offscreen' } });
  igual(Buffer.from(zip['Index.htm']).toString('latin1'), readFileSync(join(carpeta, 'Index.htm')).toString('latin1'), 'la página');
  const imagenes = readdirSync(carpeta).filter((n) => n !== 'Index.htm').sort();
  igual(Object.keys(zip).filter((n) => n !== 'Index.htm').sort().join(','), imagenes.join(','), 'los nombres de las imágenes');
  for (const n of imagenes) {
    const b = Buffer.from(zip[n]);
    cierto(b.toString('latin1', 0, 2) === 'BM' && b.readUInt32LE(2) === b.length && b.readInt32LE(18) > 100 && b.readUInt16LE(28) === 24, `${n} no es un mapa de bits`);
  }
});

comprobar('con disociación, la sección de vanta calcular --disociacion y los cuatro diagramas, desde la dirección', async () => {
  const caso = 'ciclo=Mixto&combustible=Gasoil&rc=18';
  await abrir(`${caso}&disociacion=1`);
  const salida = calcular(caso, '--disociacion').salida.replace(/\r\n/g, '\n');
  igual(await texto(pagina, '#informe-disociacion'), salida.slice(salida.indexOf('CICLO CON DISOCIACIÓN')), 'la sección');
  cierto((await pagina.$$('#diagramas-disociacion svg')).length === 4, 'los cuatro diagramas');
  cierto((await texto(pagina, '#mensajes')) === '', 'la dirección no trae nada desconocido');
  await pagina.click('#disociacion');
  cierto(await pagina.$eval('#resultado-disociacion', (e) => e.hidden), 'sin la casilla, nada');
  cierto(!new URL(pagina.url()).searchParams.has('disociacion'), 'ni en la dirección');
});

comprobar('la validación es la de vanta validar', async () => {
  await abrir('');
  await pagina.evaluate(() => { location.hash = '#validacion'; });
  await pagina.waitForFunction(() => Validacion.hecha);
  const v = await descargado('validacion.txt', () => pagina.click('#descargar-validacion'));
  igual(v.toString('utf8'), spawnSync(vanta, ['validar'], { encoding: 'utf8' }).stdout, 'la validación');
  cierto((await pagina.$$('#tablas-validacion table')).length === 5, 'una tabla por grupo, las cinco');
});

comprobar('abierta desde una carpeta (file://) calcula, y su estudio corre', async () => {
  const p = await nuevaPagina();
  await abrir('ciclo=Diesel&rc=18', p, pathToFileURL(join(sitio, 'index.html')).href);
  igual(await texto(p, '#informe'), calcular('ciclo=Diesel&rc=18').salida, 'el informe desde file://');
  const csv = (await estudioEnPagina(p, [['rc', '14:16:1']], 'rendimiento', false)).toString('utf8');
  csvIgual(csv, estudioPrograma('ciclo=Diesel', [['rc', '14:16:1']], 'rendimiento', false), 'el estudio desde file://');
  await p.close();
});

comprobar('a 360 px de ancho nada se sale de la pantalla', async () => {
  const p = await nuevaPagina(navegador.defaultBrowserContext(), 360, 740);
  for (const seccion of ['', '#estudio', '#comparacion', '#validacion']) {
    await abrir(`ciclo=Mixto${seccion}`, p);
    if (seccion === '#validacion') await p.waitForFunction(() => Validacion.hecha);
    const ancho = await p.evaluate(() => document.documentElement.scrollWidth);
    cierto(ancho <= 360, `la sección «${seccion || '#calculo'}» mide ${ancho} px`);
  }
  await p.close();
});

// ---- Run ----------------------------------------------------------------------------------

let bien = 0, mal = 0;
for (const { nombre, f } of comprobaciones) {
  try {
    await f();
    cierto(!erroresPagina.length, `errores en la página: ${erroresPagina.join('; ')}`);
    bien++;
    console.log(`ok - ${nombre}`);
  } catch (e) {
    mal++;
    console.log(`not ok - ${nombre}\n  ${String(e.stack || e).replace(/\n/g, '\n  ')}`);
  }
  erroresPagina.length = 0;
}
await navegador.close();
servidor.close();
rmSync(temporal, { recursive: true, force: true });
console.log(`cifras completas: ${cifras.distintas} de ${cifras.todas} difieren en sus últimos bits del programa`);
console.log(`${bien} passed, ${mal} failed`);
process.exit(mal ? 1 : 0);
