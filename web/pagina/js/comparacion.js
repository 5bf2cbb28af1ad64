// Comparison of up to six calculations on common axes: kept in the browser's
// storage, exported and imported as a JSON file, drawn and tabulated by the
// core as the desktop's comparison does.
'use strict';

const kMaximoComparados = 6;
const kClaveAlmacen = 'vanta.comparacion';
const kFormatoArchivo = 'vanta-comparacion';

const Comparacion = {
  calculos: [], // {nombre, entradas: {nombre: valor}}
  aviso: null,  // why the last one could not be added, until it is shown
};

function guardarComparacion() {
  try {
    localStorage.setItem(kClaveAlmacen, JSON.stringify(Comparacion.calculos));
  } catch (e) {
    mostrarMensajes(document.getElementById('mensajes-comparacion'), ['El navegador no deja guardar la comparación: se perderá al cerrar la página.']);
  }
}

// The calculations of a file or of the storage, those that are well formed.
function leerCalculos(datos) {
  const lista = Array.isArray(datos) ? datos : datos && datos.formato === kFormatoArchivo ? datos.calculos : null;
  if (!Array.isArray(lista)) return null;
  return lista.filter((c) => c && typeof c.nombre === 'string' && c.entradas && typeof c.entradas === 'object')
    .map((c) => ({ nombre: c.nombre, entradas: Object.fromEntries(Object.entries(c.entradas).map(([k, v]) => [k, String(v)])) }))
    .slice(0, kMaximoComparados);
}

function cargarComparacion() {
  try {
    Comparacion.calculos = leerCalculos(JSON.parse(localStorage.getItem(kClaveAlmacen) || '[]')) || [];
  } catch (e) {
    Comparacion.calculos = [];
  }
}

function nombreSugerido() {
  const v = Calculo.valores || {};
  const ciclo = v.ciclo || entrada('ciclo').defecto;
  const combustible = Calculo.ultimo && Calculo.ultimo.tipoCombustible;
  return `${ciclo}, ${combustible}, rc ${v.rc || entrada('rc').defecto}`;
}

function anadirCalculoActual(nombre) {
  const mensajes = document.getElementById('mensajes-comparacion');
  if (Comparacion.calculos.length >= kMaximoComparados) {
    Comparacion.aviso = `La comparación tiene ya ${kMaximoComparados} cálculos: quite uno antes de añadir otro.`;
    mostrarMensajes(mensajes, [Comparacion.aviso]);
    return false;
  }
  Comparacion.calculos.push({ nombre: nombre || nombreSugerido(), entradas: { ...Calculo.valores } });
  guardarComparacion();
  dibujarComparacion();
  return true;
}

function dibujarComparacion() {
  const avisos = Comparacion.aviso ? [Comparacion.aviso] : [];
  Comparacion.aviso = null;
  mostrarMensajes(document.getElementById('mensajes-comparacion'), avisos);
  const lista = document.getElementById('lista-comparacion');
  lista.replaceChildren(...Comparacion.calculos.map((c, i) => el('li', {},
    el('span', { class: 'muestra', 'data-i': i }), el('span', { class: 'nombre', texto: c.nombre }), ' ',
    el('code', { texto: direccionDe(c.entradas) || '(valores iniciales)' }), ' ',
    el('button', { type: 'button', onclick: () => abrirEnCalculo(c), texto: 'Abrir' }), ' ',
    el('button', { type: 'button', 'aria-label': `Quitar ${c.nombre}`, onclick: () => quitar(i), texto: 'Quitar' }))));
  const figuras = document.getElementById('figuras-comparacion');
  const tabla = document.getElementById('tabla-comparacion');
  if (!Comparacion.calculos.length) {
    figuras.replaceChildren(el('p', { class: 'nota', texto: 'Aún no hay cálculos: «Añadir el cálculo actual» pone el de la pestaña «Cálculo».' }));
    tabla.replaceChildren();
    return;
  }
  const enBar = document.getElementById('unidad-comparacion').value === 'bar';
  const r = JSON.parse(Vanta.modulo.comparar(Comparacion.calculos.map((c) => [c.nombre, lineasDe(c.entradas)]), enBar));
  r.calculos.forEach((c, i) => { const m = lista.querySelector(`.muestra[data-i="${i}"]`); if (m) m.style.background = c.color; });
  mostrarMensajes(document.getElementById('mensajes-comparacion'),
    [...avisos, ...r.calculos.filter((c) => !c.hay).map((c) => `«${c.nombre}»: ${c.mensaje}`)]);
  figuras.replaceChildren(...r.figuras.filter((f) => f).map((svg) => { const d = el('div', { class: 'imagen' }); d.innerHTML = svg; return d; }));
  const cabeza = el('tr', {}, el('th', { scope: 'col', texto: 'Magnitud' }),
    ...r.calculos.map((c) => el('th', { scope: 'col', texto: c.nombre })),
    ...r.calculos.slice(1).map((c) => el('th', { scope: 'col', texto: `Δ ${c.nombre}` })));
  const filas = r.tabla.map((f) => el('tr', { class: [f.entrada ? 'entrada' : '', f.distinta ? 'distinta' : ''].join(' ').trim() || false },
    el('th', { scope: 'row', texto: f.magnitud }), ...f.valores.map((v) => el('td', { texto: v })),
    ...f.diferencias.slice(1).map((v) => el('td', { texto: v }))));
  tabla.replaceChildren(el('table', {}, el('caption', { texto: 'Cifras principales y sus diferencias con el primero' }),
    el('thead', {}, cabeza), el('tbody', {}, ...filas)));
}

function quitar(i) {
  Comparacion.calculos.splice(i, 1);
  guardarComparacion();
  dibujarComparacion();
}

function abrirEnCalculo(c) {
  ponerValores(c.entradas);
  calcular(valoresDados());
  location.hash = '#calculo';
}

function prepararComparacion() {
  cargarComparacion();
  const form = document.getElementById('form-comparacion');
  form.addEventListener('submit', (ev) => {
    ev.preventDefault();
    if (anadirCalculoActual(form.elements.nombre.value.trim())) form.elements.nombre.value = '';
  });
  // To the comparison, which shows it (or why it could not be added).
  document.getElementById('anadir-comparacion').addEventListener('click', () => {
    anadirCalculoActual('');
    location.hash = '#comparacion';
  });
  document.getElementById('unidad-comparacion').addEventListener('change', dibujarComparacion);
  document.getElementById('exportar-comparacion').addEventListener('click', () => descargar('comparacion-vanta.json',
    JSON.stringify({ formato: kFormatoArchivo, version: 1, calculos: Comparacion.calculos }, null, 2), 'application/json'));
  document.getElementById('importar-comparacion').addEventListener('change', async (ev) => {
    const archivo = ev.target.files[0];
    ev.target.value = '';
    if (!archivo) return;
    let calculos = null;
    try { calculos = leerCalculos(JSON.parse(await archivo.text())); } catch (e) { calculos = null; }
    if (!calculos) {
      mostrarMensajes(document.getElementById('mensajes-comparacion'), [`«${archivo.name}» no es una comparación exportada por Vanta.`]);
      return;
    }
    Comparacion.calculos = calculos;
    guardarComparacion();
    dibujarComparacion();
  });
}
