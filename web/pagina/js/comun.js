// What the page's scripts share: the module of the calculation, the inputs
// as the core declares them, and small helpers for the page and its files.
'use strict';

const Vanta = {
  modulo: null,   // the WebAssembly module, once loaded
  entradas: [],   // the inputs of a calculation, in the order of the stages
  salidas: [],    // the outputs a study may ask for
  nombrePagina: '',
  imagenesPagina: [],
};

// An element with attributes and children.
function el(etiqueta, atributos = {}, ...hijos) {
  const e = document.createElement(etiqueta);
  for (const [k, v] of Object.entries(atributos)) {
    if (v === false || v == null) continue;
    if (k === 'texto') e.textContent = v;
    else if (k.startsWith('on')) e.addEventListener(k.slice(2), v);
    else e.setAttribute(k, v === true ? '' : v);
  }
  for (const h of hijos) if (h != null) e.append(h);
  return e;
}

// Messages in a box of messages, each its own line.
function mostrarMensajes(caja, mensajes) {
  caja.replaceChildren(...mensajes.map((m) => el('p', { texto: m })));
  caja.hidden = mensajes.length === 0;
}

// A file offered for download, with the bytes (or text) given.
function descargar(nombre, contenido, tipo) {
  const blob = contenido instanceof Blob ? contenido : new Blob([contenido], { type: tipo });
  const url = URL.createObjectURL(blob);
  const a = el('a', { href: url, download: nombre });
  document.body.append(a);
  a.click();
  a.remove();
  setTimeout(() => URL.revokeObjectURL(url), 1000);
}

// A text as UTF-8 bytes: the core's texts cross to the page as strings.
function bytesUtf8(texto) {
  return new TextEncoder().encode(texto);
}

// ---- The address: the given inputs as the command line's options ------------

// Commas and colons stay readable: "formula=7,16,0,0,0".
function codificar(valor) {
  return encodeURIComponent(valor).replace(/%2C/gi, ',').replace(/%3A/gi, ':');
}

function direccionDe(valores) {
  return Object.entries(valores).map(([k, v]) => `${k}=${codificar(v)}`).join('&');
}

// The inputs of an address, in its order; the names that are not inputs
// apart.
function leerDireccion(busqueda) {
  const valores = {}, desconocidas = [];
  const nombres = new Set(Vanta.entradas.map((e) => e.nombre));
  for (const [k, v] of new URLSearchParams(busqueda)) {
    if (nombres.has(k)) valores[k] = v;
    else desconocidas.push(k);
  }
  return { valores, desconocidas };
}

// The inputs as the core reads them: one "nombre=valor" a line.
function lineasDe(valores) {
  return Object.entries(valores).map(([k, v]) => `${k}=${v.replace(/\n/g, ' ')}\n`).join('');
}

function entrada(nombre) {
  return Vanta.entradas.find((e) => e.nombre === nombre);
}

function conUnidad(titulo, unidad) {
  return unidad && unidad !== '-' ? `${titulo} (${unidad})` : titulo;
}

// A text put into markup written by hand.
function escaparXML(t) {
  return String(t).replace(/[&<>"']/g, (c) => `&#${c.charCodeAt(0)};`);
}
