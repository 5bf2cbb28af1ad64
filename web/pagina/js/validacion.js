// The validation tables, calculated the first time they are shown.
'use strict';

const Validacion = { hecha: null };

const kClaseResultado = ['cumple', 'explicada', 'no-cumple'];

function mostrarValidacion() {
  if (Validacion.hecha) return;
  const caja = document.getElementById('tablas-validacion');
  caja.replaceChildren(el('p', { class: 'estado-carga', texto: 'Calculando la validación…' }));
  // One frame later, so that the words above are on screen while it runs.
  requestAnimationFrame(() => setTimeout(() => {
    const v = JSON.parse(Vanta.modulo.validacion());
    Validacion.hecha = v;
    const resumen = el('p', { class: v.correcta ? 'resumen cumple' : 'resumen no-cumple',
      texto: `${v.cumplen} comprobaciones cumplen, ${v.explicadas} se apartan por una razón del modelo, ${v.noCumplen} no cumplen.` });
    caja.replaceChildren(resumen, ...v.grupos.map((g) => el('section', { class: 'grupo-validacion' },
      el('h3', { texto: g.titulo }), el('p', { class: 'nota', texto: g.explicacion }),
      el('div', { class: 'desplazable' }, el('table', {},
        el('thead', {}, el('tr', {}, ...['Comprobación', 'Programa', 'Referencia', 'Diferencia', 'Tolerancia', 'Resultado']
          .map((t) => el('th', { scope: 'col', texto: t })))),
        el('tbody', {}, ...g.filas.map((f) => el('tr', { class: kClaseResultado[f.codigo] },
          el('th', { scope: 'row', texto: f.nombre }), el('td', { texto: f.programa }), el('td', { texto: f.referencia }),
          el('td', { texto: f.diferencia }), el('td', { texto: f.tolerancia }),
          el('td', { title: f.nota || false, texto: f.resultado + (f.nota ? ` — ${f.nota}` : '') })))))))));
    document.getElementById('descargar-validacion').disabled = false;
  }, 0));
}

function prepararValidacion() {
  document.getElementById('descargar-validacion').addEventListener('click', () =>
    descargar('validacion.txt', bytesUtf8(Validacion.hecha.texto), 'text/plain;charset=utf-8'));
}
