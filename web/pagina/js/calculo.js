// The calculation: the four stages as forms built from the core's inputs,
// the address kept in step with them, and the results, pictures, readout and
// report of each calculation.
'use strict';

const Calculo = {
  calculadora: null,
  ultimo: null,       // the last answer of the core
  campos: {},         // the input boxes and lists by name
  opciones: {},       // the option buttons of inputs that exclude each other
  grupos: [],         // each a list of names that exclude each other
  ultimaLectura: null,
  tiempos: [],        // ms of the calculations as the user types
  imagenes: [],       // the pictures on show, to leave alone those that stay the same
  esperaJSON: 0,
};

// The JSON takes a calculation of its own: it follows when the typing
// pauses. The element says when it holds the last calculation's.
const kPausaJSON = 150;

function ponerJSONDespues() {
  const caja = document.getElementById('json');
  delete caja.dataset.listo;
  clearTimeout(Calculo.esperaJSON);
  Calculo.esperaJSON = setTimeout(() => {
    caja.textContent = Calculo.calculadora.json();
    caja.dataset.listo = 'si';
  }, kPausaJSON);
}

// ---- The forms ----------------------------------------------------------------

// Inputs that exclude each other, each chosen by its option button.
function gruposDeEntradas() {
  const grupos = [];
  for (const e of Vanta.entradas) {
    const mutuas = e.excluye.filter((o) => entrada(o).excluye.includes(e.nombre));
    if (!mutuas.length || grupos.some((g) => g.includes(e.nombre))) continue;
    grupos.push([e.nombre, ...mutuas]);
  }
  return grupos;
}

function campoDe(e) {
  const id = `entrada-${e.nombre}`;
  const control = e.valores.length
    ? el('select', { id, name: e.nombre }, ...e.valores.map((v) => el('option', { value: v, texto: v })))
    : el('input', { id, name: e.nombre, type: 'text', inputmode: e.numerica ? 'decimal' : 'text',
      spellcheck: 'false', title: e.sigue ? `Vacío: como ${entrada(e.sigue).titulo.toLowerCase()}` : false });
  control.value = e.defecto;
  Calculo.campos[e.nombre] = control;
  return control;
}

function construirFormularios() {
  Calculo.grupos = gruposDeEntradas();
  const enGrupo = new Map();
  Calculo.grupos.forEach((g, i) => g.forEach((n) => enGrupo.set(n, i)));
  const hechos = new Set();
  for (const e of Vanta.entradas) {
    if (hechos.has(e.nombre)) continue;
    const etapa = document.querySelector(`fieldset[data-etapa="${e.etapa}"]`);
    if (enGrupo.has(e.nombre)) {
      const g = Calculo.grupos[enGrupo.get(e.nombre)];
      const marco = el('div', { class: 'grupo', role: 'radiogroup', 'aria-label': g.map((n) => entrada(n).titulo).join(' o ') });
      for (const n of g) {
        const m = entrada(n);
        hechos.add(n);
        const opcion = el('input', { type: 'radio', name: `grupo-${enGrupo.get(n)}`, id: `elegir-${n}`, value: n });
        opcion.checked = m.elegidaSinDar;
        Calculo.opciones[n] = opcion;
        const fila = el('div', { class: 'campo', 'data-entrada': n, 'data-solo-con': m.soloCon || false },
          el('label', { class: 'opcion', for: `elegir-${n}` }, opcion, ` ${m.titulo}`),
          el('span', { class: 'control' }, campoDe(m), m.unidad && m.unidad !== '-' ? el('span', { class: 'unidad', texto: m.unidad }) : null));
        marco.append(fila);
      }
      etapa.append(marco);
      continue;
    }
    hechos.add(e.nombre);
    etapa.append(el('div', { class: 'campo', 'data-entrada': e.nombre, 'data-solo-con': e.soloCon || false },
      el('label', { for: `entrada-${e.nombre}`, texto: e.titulo }),
      el('span', { class: 'control' }, campoDe(e), e.unidad && e.unidad !== '-' ? el('span', { class: 'unidad', texto: e.unidad }) : null)));
  }
  // Focus on a box of an input that excludes others chooses it.
  for (const [n, opcion] of Object.entries(Calculo.opciones))
    Calculo.campos[n].addEventListener('focus', () => { if (!opcion.checked) { opcion.checked = true; alCambiar(); } });
  document.getElementById('entradas').addEventListener('input', alCambiar);
  document.getElementById('entradas').addEventListener('change', alCambiar);
  document.getElementById('entradas').addEventListener('submit', (ev) => ev.preventDefault());
}

function elegida(nombre) {
  const opcion = Calculo.opciones[nombre];
  return !opcion || opcion.checked;
}

// Shows what applies: the box of the chosen option of each group, the inputs
// the choices drop hidden, the ones that mean nothing with the other choices
// dimmed.
function ajustarVisibles() {
  // A box left empty takes another's text: it shows it, greyed.
  for (const e of Vanta.entradas) if (e.sigue) Calculo.campos[e.nombre].placeholder = Calculo.campos[e.sigue].value;
  const fuera = new Set();
  for (const e of Vanta.entradas) if (Calculo.opciones[e.nombre] && elegida(e.nombre)) e.excluye.forEach((o) => fuera.add(o));
  for (const e of Vanta.entradas) {
    const fila = document.querySelector(`.campo[data-entrada="${e.nombre}"]`);
    const enGrupo = !!Calculo.opciones[e.nombre];
    fila.classList.toggle('elegida', enGrupo && elegida(e.nombre));
    fila.hidden = !enGrupo && fuera.has(e.nombre);
    if (e.soloCon) {
      const [otra, valor] = e.soloCon.split('=');
      fila.classList.toggle('no-aplica', Calculo.campos[otra].value !== valor);
    }
  }
}

// The inputs given: each chosen, shown input whose text is not the one it
// starts with (the chosen one of a group that is not taken by default,
// always, even empty: its box then says what it lacks).
function valoresDados() {
  const valores = {};
  for (const e of Vanta.entradas) {
    const fila = document.querySelector(`.campo[data-entrada="${e.nombre}"]`);
    if (fila.hidden || !elegida(e.nombre)) continue;
    const texto = Calculo.campos[e.nombre].value;
    const porOpcion = Calculo.opciones[e.nombre] && !e.elegidaSinDar;
    if (texto !== e.defecto || porOpcion) valores[e.nombre] = texto;
  }
  return valores;
}

// Puts the inputs of an address into the forms: each given input is typed
// into its box and, of a group, chosen.
function ponerValores(valores) {
  for (const e of Vanta.entradas) {
    Calculo.campos[e.nombre].value = e.defecto;
    if (Calculo.opciones[e.nombre]) Calculo.opciones[e.nombre].checked = e.elegidaSinDar;
  }
  for (const [n, v] of Object.entries(valores)) {
    const control = Calculo.campos[n];
    if (control.tagName === 'SELECT' && ![...control.options].some((o) => o.value === v))
      control.append(el('option', { value: v, texto: v }));
    control.value = v;
    if (Calculo.opciones[n]) Calculo.opciones[n].checked = true;
  }
  ajustarVisibles();
}

// ---- Calculating ------------------------------------------------------------------

// The check box of the cycle with dissociation rides in the address under
// the command line's name of its option.
const kDisociacion = 'disociacion';

function actualizarDireccion(valores) {
  const conDisociacion = document.getElementById(kDisociacion).checked;
  const busqueda = direccionDe(conDisociacion ? { ...valores, [kDisociacion]: '1' } : valores);
  const url = location.pathname + (busqueda ? `?${busqueda}` : '') + location.hash;
  try { history.replaceState(null, '', url); } catch (e) { /* a browser that keeps file addresses fixed */ }
}

function alCambiar() {
  ajustarVisibles();
  const t0 = performance.now();
  calcular(valoresDados());
  Calculo.tiempos.push(performance.now() - t0);
}

// One calculation of the inputs given, shown whole. The address follows the
// forms, but for the one the page was opened with, which stays as it came.
function calcular(valores, avisosDireccion = [], conDireccion = true) {
  if (conDireccion) actualizarDireccion(valores);
  const r = JSON.parse(Calculo.calculadora.calcular(lineasDe(valores)));
  Calculo.ultimo = r;
  Calculo.valores = valores;
  mostrarResultado(r, avisosDireccion);
  return r;
}

const kEtapas = { aire: '1- Comburente', combustible: '2- Combustible', combustion: '3- Combustión', ciclo: '4- Ciclo', potencia: 'Potencia' };

function mostrarResultado(r, avisosDireccion) {
  const mensajes = [...avisosDireccion, ...r.mensajes];
  mostrarMensajes(document.getElementById('mensajes'), mensajes);
  document.querySelectorAll('fieldset[data-etapa]').forEach((f) => f.classList.toggle('con-fallo', !r.bien && f.dataset.etapa === r.etapa));
  document.querySelectorAll('.campo.con-fallo').forEach((c) => c.classList.remove('con-fallo'));
  if (r.entrada) document.querySelector(`.campo[data-entrada="${r.entrada}"]`)?.classList.add('con-fallo');
  if (!r.bien && r.etapa && mensajes.length) {
    const caja = document.getElementById('mensajes');
    caja.prepend(el('p', { class: 'etapa', texto: `No pasa la etapa «${kEtapas[r.etapa]}»:` }));
  }

  document.querySelectorAll('.imagen[data-imagen]').forEach((caja) => {
    const i = Number(caja.dataset.imagen);
    const svg = r.imagenes ? r.imagenes[i] : '';
    if (svg === Calculo.imagenes[i] && !caja.querySelector('g.transitoria > *')) return;
    Calculo.imagenes[i] = svg;
    caja.innerHTML = svg;
    caja.classList.toggle('vacia', !svg);
  });
  Calculo.ultimaLectura = null;
  ['transformacion', 'p', 'V', 'T', 'h', 's'].forEach((k) => { document.getElementById(`lectura-${k}`).textContent = '—'; });

  mostrarTablas(r);
  mostrarAvisos(r);
  document.getElementById('informe').textContent = r.bien ? r.informe : '';
  mostrarDisociacion(r);
  ponerJSONDespues();
  for (const id of ['descargar-informe', 'descargar-pagina', 'anadir-comparacion']) document.getElementById(id).disabled = !r.bien;
}

// The cycle in equilibrium beside the program's, when the box asks for it:
// its four diagrams and the section `vanta calcular --disociacion` writes.
function mostrarDisociacion(r) {
  const caja = document.getElementById('resultado-disociacion');
  caja.hidden = !(r.bien && document.getElementById(kDisociacion).checked);
  if (caja.hidden) return;
  const d = JSON.parse(Vanta.modulo.disociacion(lineasDe(Calculo.valores)));
  document.getElementById('informe-disociacion').textContent = d.bien ? d.texto : d.mensaje;
  const diagramas = document.getElementById('diagramas-disociacion');
  diagramas.replaceChildren(...(d.bien ? d.figuras : []).map((svg) => { const f = el('div', { class: 'imagen' }); f.innerHTML = svg; return f; }));
}

function mostrarTablas(r) {
  const t = r.resultados;
  const estados = document.querySelector('#tabla-estados tbody');
  const procesos = document.querySelector('#tabla-procesos tbody');
  const cifras = document.getElementById('cifras');
  if (!t) {
    estados.replaceChildren();
    procesos.replaceChildren();
    cifras.replaceChildren();
    return;
  }
  estados.replaceChildren(...[0, 1, 2, 3, 4].map((k) => el('tr', {}, el('th', { scope: 'row', texto: String(k + 1) }),
    ...['p', 'V', 'T', 'h', 's'].map((q) => el('td', { texto: t[q][k] })))));
  const fila = (n, q, w, g) => el('tr', {}, el('th', { scope: 'row', texto: n }), el('td', { texto: q }), el('td', { texto: w }), el('td', { texto: g }));
  procesos.replaceChildren(
    fila('1-2', '', t.W12, `${t.G12} / ${t.G2}`), fila('2-3', t.Q23, '', ''), fila('3-4', t.Q34, t.W34, ''),
    fila('4-5', '', t.W45, `${t.G45} / ${t.G5}`), fila('Ciclo', t.Qciclo, t.Wciclo, ''));
  const dato = (n, v, u) => el('div', {}, el('dt', { texto: n }), el('dd', { texto: `${v.trim()} ${u}` }));
  const lista = [dato('Rendimiento', t.Rendimiento, ''), dato('Consumo específico', t.ConsumoMJ, 'g / MJ'),
    dato('Consumo específico', t.ConsumoKwh, 'g / (kW·h)'), dato('Cilindrada', t.Cilindrada, 'c.c.')];
  if (r.potencia) lista.splice(1, 0, dato('Potencia', r.potencia.W, 'W'), dato('Potencia', r.potencia.CV, 'CV'));
  cifras.replaceChildren(...lista);
}

function porcentaje(x) {
  return `${(100 * x).toFixed(1)} %`;
}

// The validity warnings, and the efficiency beside the ideal cycle's.
function mostrarAvisos(r) {
  const caja = document.getElementById('avisos');
  caja.replaceChildren();
  if (!r.bien) return;
  for (const a of r.avisos) caja.append(el('p', { class: 'aviso', texto: a }));
  const barras = el('dl', { class: 'barras' });
  const barra = (n, v) => barras.append(el('div', {}, el('dt', { texto: n }),
    el('dd', {}, el('span', { class: 'barra', style: `width:${Math.max(0, Math.min(100, 100 * v))}%` }), ` ${porcentaje(v)}`)));
  if (r.ideal.aireEstandar !== undefined) barra(`${r.ideal.nombre}, γ = ${r.ideal.gammaAireEstandar}`, r.ideal.aireEstandar);
  if (r.ideal.exponentes !== undefined) barra(`${r.ideal.nombre}, γ del cálculo`, r.ideal.exponentes);
  barra('Cálculo', r.ideal.rendimiento);
  barras.title = r.ideal.explicacion;
  caja.append(barras);
}

// ---- The readout under the pointer ----------------------------------------------

function leerEn(caja, x, y) {
  if (!Calculo.ultimo || !Calculo.ultimo.bien) return;
  const r = JSON.parse(Calculo.calculadora.leer(Number(caja.dataset.diagrama), x, y));
  if (!r.transitorias) return;
  Calculo.ultimaLectura = { caja, x, y };
  document.getElementById('lectura-transformacion').textContent = r.transformacion;
  for (const k of ['p', 'V', 'T', 'h', 's']) document.getElementById(`lectura-${k}`).textContent = r[k].trim();
  [3, 4, 5, 6].forEach((imagen, i) => {
    const g = document.querySelector(`.imagen[data-imagen="${imagen}"] g.transitoria`);
    if (g) g.innerHTML = r.transitorias[i];
  });
  if (r.mensajes.length) mostrarMensajes(document.getElementById('mensajes'), r.mensajes);
}

// The pointer's place in the picture's pixels.
function puntoEnImagen(caja, ev) {
  const svg = caja.querySelector('svg');
  if (!svg) return null;
  const p = svg.createSVGPoint();
  p.x = ev.clientX;
  p.y = ev.clientY;
  return p.matrixTransform(svg.getScreenCTM().inverse());
}

function prepararLectura() {
  document.querySelectorAll('.imagen.lectura').forEach((caja) => {
    let pendiente = null;
    const mover = (ev) => {
      const p = puntoEnImagen(caja, ev);
      if (!p) return;
      if (!pendiente) requestAnimationFrame(() => { leerEn(caja, pendiente.x, pendiente.y); pendiente = null; });
      pendiente = p;
    };
    caja.addEventListener('pointermove', mover);
    caja.addEventListener('pointerdown', mover);
    // The arrows move the point read over the picture, from its middle.
    caja.addEventListener('keydown', (ev) => {
      const pasos = { ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1] }[ev.key];
      const svg = caja.querySelector('svg');
      if (!pasos || !svg) return;
      ev.preventDefault();
      const caja2 = svg.viewBox.baseVal;
      const antes = Calculo.ultimaLectura && Calculo.ultimaLectura.caja === caja ? Calculo.ultimaLectura : { x: caja2.width / 2, y: caja2.height / 2 };
      const paso = ev.shiftKey ? 20 : 4;
      leerEn(caja, Math.min(caja2.width, Math.max(0, antes.x + pasos[0] * paso)), Math.min(caja2.height, Math.max(0, antes.y + pasos[1] * paso)));
    });
  });
}

// ---- Start --------------------------------------------------------------------------

function empezarCalculo() {
  Calculo.calculadora = new Vanta.modulo.Calculadora();
  construirFormularios();
  prepararLectura();
  const { valores, desconocidas } = leerDireccion(location.search);
  const casilla = document.getElementById(kDisociacion);
  document.getElementById('texto-disociacion').textContent = Vanta.modulo.casillaDisociacion();
  casilla.checked = desconocidas.includes(kDisociacion);
  desconocidas.splice(0, desconocidas.length, ...desconocidas.filter((n) => n !== kDisociacion));
  casilla.addEventListener('change', () => { actualizarDireccion(Calculo.valores); mostrarDisociacion(Calculo.ultimo); });
  ponerValores(valores);
  const avisos = desconocidas.map((n) => `La dirección trae «${n}», que no es una entrada del cálculo: no se tiene en cuenta.`);
  calcular(valoresDados(), avisos, false);
  document.getElementById('restablecer').addEventListener('click', () => { ponerValores({}); alCambiar(); });
  document.getElementById('copiar-enlace').addEventListener('click', async (ev) => {
    const boton = ev.currentTarget;
    try {
      await navigator.clipboard.writeText(location.href);
      boton.textContent = 'Enlace copiado';
    } catch (e) {
      boton.textContent = 'Copie la dirección de la barra del navegador';
    }
    setTimeout(() => { boton.textContent = 'Copiar el enlace'; }, 2500);
  });
}
