// Parametric studies in a worker of their own, point by point, with their
// progress, a cancel, the table as CSV (the columns of `vanta estudio`) and a
// plot of an output against the first input, one line per value of the
// second.
'use strict';

// The worker's own code. It runs the module's factory, which the page gives
// it as text: a worker made from that text needs no file, so it also starts
// on a page opened from a folder.
function trabajadorEstudio() {
  let modulo = null, estudio = null, cancelado = false, tandaActual = 0;
  const listo = VantaModulo().then((m) => { modulo = m; });
  onmessage = async (ev) => {
    const orden = ev.data;
    if (orden.tipo === 'cancelar') { cancelado = true; return; }
    await listo;
    cancelado = false;
    const esta = ++tandaActual;
    if (estudio) estudio.delete();
    estudio = new modulo.Estudio();
    const info = JSON.parse(estudio.preparar(orden.base, orden.variar, orden.salidas, orden.espanol));
    postMessage({ tipo: 'preparado', info });
    if (info.error) return;
    let i = 0;
    // Points in batches of about a tenth of a second, so that a cancel is
    // heard between them.
    const tanda = () => {
      if (esta !== tandaActual) return;
      if (cancelado) { postMessage({ tipo: 'cancelado', hechos: i }); return; }
      const puntos = [];
      const t0 = performance.now();
      while (i < info.puntos && performance.now() - t0 < 100) puntos.push(JSON.parse(estudio.punto(i++)));
      postMessage({ tipo: 'puntos', puntos, hechos: i });
      if (i < info.puntos) setTimeout(tanda, 0);
      else postMessage({ tipo: 'fin' });
    };
    tanda();
  };
}

const Estudio = {
  trabajador: null,
  info: null,
  filas: [],
  puntos: [],
  corriendo: false,
};

function nuevoTrabajador() {
  const fuente = `var _scriptDir;\nvar VantaModulo = ${VantaModulo.toString()};\n(${trabajadorEstudio.toString()})();\n`;
  const url = URL.createObjectURL(new Blob([fuente], { type: 'text/javascript' }));
  const t = new Worker(url);
  t.onmessage = (ev) => alMensajeEstudio(ev.data);
  t.onerror = (ev) => {
    mostrarMensajes(document.getElementById('mensajes-estudio'), [`El estudio se ha detenido: ${ev.message}`]);
    terminarEstudio();
  };
  return t;
}

function construirFormEstudio() {
  const form = document.getElementById('form-estudio');
  for (const i of [0, 1]) {
    const lista = form.elements[`nombre${i}`];
    if (i === 1) lista.append(el('option', { value: '', texto: '(ninguna)' }));
    for (const e of Vanta.entradas) lista.append(el('option', { value: e.nombre, texto: conUnidad(e.titulo, e.unidad) }));
    lista.addEventListener('change', () => ajustarVariacion(i));
  }
  form.elements.nombre0.value = 'rc';
  form.elements.valores0.value = '6:14:0.5';
  form.elements.nombre1.value = '';
  ajustarVariacion(0);
  ajustarVariacion(1);
  const salidas = document.getElementById('salidas-estudio');
  for (const s of Vanta.salidas) {
    const caja = el('input', { type: 'checkbox', name: 'salida', value: s.nombre });
    caja.checked = s.nombre === 'rendimiento';
    salidas.append(el('label', { title: s.nombre }, caja, ` ${conUnidad(s.titulo, s.unidad)}`,
      s.conRegimen ? el('small', { texto: ' (con r.p.m.)' }) : null));
  }
  form.addEventListener('submit', (ev) => { ev.preventDefault(); empezarEstudio(); });
  document.getElementById('cancelar-estudio').addEventListener('click', () => Estudio.trabajador.postMessage({ tipo: 'cancelar' }));
  document.getElementById('descargar-csv').addEventListener('click', () =>
    descargar('estudio.csv', bytesUtf8(Estudio.info.cabecera + Estudio.filas.join('')), 'text/csv;charset=utf-8'));
}

// A choice is varied over the values ticked; a number or a formula over the
// values typed.
function ajustarVariacion(i) {
  const form = document.getElementById('form-estudio');
  const nombre = form.elements[`nombre${i}`].value;
  const e = nombre ? entrada(nombre) : null;
  const caja = form.querySelector(`.elecciones[data-i="${i}"]`);
  const texto = form.elements[`valores${i}`];
  texto.closest('label').hidden = !e || e.valores.length > 0;
  caja.replaceChildren(...(e ? e.valores : []).map((v) => {
    const marca = el('input', { type: 'checkbox', value: v });
    marca.checked = true;
    return el('label', {}, marca, ` ${v}`);
  }));
  caja.hidden = !e || e.valores.length === 0;
}

function valoresVariacion(i) {
  const form = document.getElementById('form-estudio');
  const e = entrada(form.elements[`nombre${i}`].value);
  if (e.valores.length)
    return [...form.querySelectorAll(`.elecciones[data-i="${i}"] input:checked`)].map((m) => m.value).join(',');
  return form.elements[`valores${i}`].value;
}

function empezarEstudio() {
  const form = document.getElementById('form-estudio');
  const variar = [[form.elements.nombre0.value, valoresVariacion(0)]];
  if (form.elements.nombre1.value) variar.push([form.elements.nombre1.value, valoresVariacion(1)]);
  const salidas = [...form.querySelectorAll('input[name="salida"]:checked')].map((c) => c.value).join(',');
  mostrarMensajes(document.getElementById('mensajes-estudio'), salidas ? [] : ['Elija al menos una salida.']);
  if (!salidas) return;
  Estudio.trabajador = Estudio.trabajador || nuevoTrabajador();
  Estudio.filas = [];
  Estudio.puntos = [];
  Estudio.corriendo = true;
  Estudio.inicio = performance.now();
  document.getElementById('empezar-estudio').disabled = true;
  document.getElementById('cancelar-estudio').disabled = false;
  document.getElementById('descargar-csv').disabled = true;
  Estudio.trabajador.postMessage({ tipo: 'empezar', base: lineasDe(Calculo.valores), variar, salidas,
    espanol: form.elements.dialecto.value === 'es' });
}

function terminarEstudio() {
  Estudio.corriendo = false;
  document.getElementById('empezar-estudio').disabled = false;
  document.getElementById('cancelar-estudio').disabled = true;
  document.getElementById('descargar-csv').disabled = !Estudio.info || !!Estudio.info.error;
}

function progreso(hechos, texto) {
  const p = document.getElementById('progreso-estudio');
  p.hidden = false;
  p.querySelector('progress').max = Estudio.info.puntos;
  p.querySelector('progress').value = hechos;
  p.querySelector('span').textContent = texto || `${hechos} de ${Estudio.info.puntos} puntos`;
}

function alMensajeEstudio(m) {
  if (m.tipo === 'preparado') {
    Estudio.info = m.info;
    if (m.info.error) {
      mostrarMensajes(document.getElementById('mensajes-estudio'), [m.info.error]);
      document.getElementById('progreso-estudio').hidden = true;
      terminarEstudio();
      return;
    }
    prepararSalidaEstudio();
    progreso(0);
  } else if (m.tipo === 'puntos') {
    for (const p of m.puntos) {
      Estudio.filas.push(p.fila);
      Estudio.puntos.push(p);
    }
    agregarFilasTabla(m.puntos);
    progreso(m.hechos);
  } else if (m.tipo === 'fin' || m.tipo === 'cancelado') {
    const segundos = ((performance.now() - Estudio.inicio) / 1000).toFixed(1);
    progreso(Estudio.puntos.length, m.tipo === 'fin'
      ? `${Estudio.puntos.length} puntos en ${segundos} s`
      : `Cancelado: ${Estudio.puntos.length} de ${Estudio.info.puntos} puntos (la tabla tiene los calculados)`);
    dibujarEstudio();
    terminarEstudio();
  }
}

// ---- The table and the plot -----------------------------------------------------

const kFilasVisibles = 500;

function prepararSalidaEstudio() {
  const info = Estudio.info;
  const cabeza = el('tr', {}, ...info.entradas.map((e) => el('th', { scope: 'col', texto: conUnidad(e.titulo, e.unidad) })),
    ...info.salidas.map((s) => el('th', { scope: 'col', texto: conUnidad(s.titulo, s.unidad) })), el('th', { scope: 'col', texto: 'Mensajes' }));
  const tabla = el('table', {}, el('caption', { texto: `Las primeras ${kFilasVisibles} filas; la tabla entera, en el CSV` }),
    el('thead', {}, cabeza), el('tbody'));
  document.getElementById('tabla-estudio').replaceChildren(tabla);
  const eleccion = el('select', { id: 'salida-grafica', onchange: dibujarEstudio },
    ...info.salidas.map((s, k) => el('option', { value: k, texto: conUnidad(s.titulo, s.unidad) })));
  document.getElementById('grafica-estudio').replaceChildren(el('label', {}, 'Gráfica de ', eleccion), el('div', { class: 'lienzo' }));
}

function agregarFilasTabla(puntos) {
  const cuerpo = document.querySelector('#tabla-estudio tbody');
  for (const p of puntos) {
    if (cuerpo.rows.length >= kFilasVisibles) return;
    cuerpo.append(el('tr', { class: p.bien ? false : 'fallo' }, ...p.entradas.map((v) => el('td', { texto: v })),
      ...p.valores.map((v) => el('td', { texto: v === null ? '' : String(v) })), el('td', { texto: p.mensajes.join(' | ') })));
  }
}

// An output against the first input (its values in order when it is not a
// number), one line per value of the second input.
function dibujarEstudio() {
  const lienzo = document.querySelector('#grafica-estudio .lienzo');
  if (!lienzo || !Estudio.puntos.length) return;
  const k = Number(document.getElementById('salida-grafica').value);
  const info = Estudio.info;
  const numerica = info.entradas[0].numerica;
  const categorias = [];
  const series = new Map();
  for (const p of Estudio.puntos) {
    let x = numerica ? Number(p.entradas[0]) : categorias.indexOf(p.entradas[0]);
    if (!numerica && x < 0) x = categorias.push(p.entradas[0]) - 1;
    const clave = p.entradas[1] ?? '';
    if (!series.has(clave)) series.set(clave, []);
    if (p.valores[k] !== null) series.get(clave).push([x, p.valores[k]]);
  }
  const todos = [...series.values()].flat();
  if (!todos.length) { lienzo.replaceChildren(el('p', { texto: 'Ningún punto tiene esa salida.' })); return; }
  const W = 640, H = 380, izq = 78, der = 16, arr = 16, aba = 48;
  const rango = (vs) => { let a = Math.min(...vs), b = Math.max(...vs); if (a === b) { a -= 1; b += 1; } return [a, b]; };
  const [x0, x1] = rango(todos.map((p) => p[0])), [y0, y1] = rango(todos.map((p) => p[1]));
  const X = (x) => izq + ((x - x0) / (x1 - x0)) * (W - izq - der);
  const Y = (y) => H - aba - ((y - y0) / (y1 - y0)) * (H - arr - aba);
  const colores = ['#0050c8', '#d22828', '#14963c', '#9632b4', '#e68200', '#008c96'];
  const marcas = (a, b) => Array.from({ length: 6 }, (_, i) => a + ((b - a) * i) / 5);
  const cifra = (v) => (Math.abs(v) >= 1e5 || (Math.abs(v) < 1e-3 && v !== 0) ? v.toExponential(2) : Number(v.toPrecision(4)).toString());
  let svg = `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 ${W} ${H}" font-family="sans-serif" font-size="12">`;
  svg += `<rect width="${W}" height="${H}" fill="#fff"/><rect x="${izq}" y="${arr}" width="${W - izq - der}" height="${H - arr - aba}" fill="none" stroke="#000"/>`;
  for (const v of marcas(y0, y1)) svg += `<line x1="${izq}" x2="${W - der}" y1="${Y(v)}" y2="${Y(v)}" stroke="#ddd"/><text x="${izq - 6}" y="${Y(v) + 4}" text-anchor="end">${cifra(v)}</text>`;
  const xs = numerica ? marcas(x0, x1) : categorias.map((_, i) => i);
  for (const v of xs) svg += `<text x="${X(v)}" y="${H - aba + 16}" text-anchor="middle">${numerica ? cifra(v) : escaparXML(categorias[v])}</text>`;
  svg += `<text x="${(izq + W - der) / 2}" y="${H - 8}" text-anchor="middle">${escaparXML(conUnidad(info.entradas[0].titulo, info.entradas[0].unidad))}</text>`;
  let i = 0;
  for (const [clave, ps] of series) {
    const c = colores[i % colores.length];
    svg += `<polyline fill="none" stroke="${c}" stroke-width="2" points="${ps.map((p) => `${X(p[0]).toFixed(1)},${Y(p[1]).toFixed(1)}`).join(' ')}"/>`;
    if (clave !== '') svg += `<text x="${izq + 8}" y="${arr + 16 + 15 * i}" fill="${c}">${escaparXML(`${info.entradas[1].titulo} = ${clave}`)}</text>`;
    i++;
  }
  lienzo.innerHTML = `${svg}</svg>`;
}
