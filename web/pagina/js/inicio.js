// Start: the module loads, the forms are built from the core's inputs and
// the calculation of the address is shown; the sections follow the address's
// fragment (#estudio, #comparacion, #validacion).
'use strict';

function mostrarSeccion() {
  const id = ['calculo', 'estudio', 'comparacion', 'validacion'].find((s) => location.hash === `#${s}`) || 'calculo';
  document.querySelectorAll('main > .seccion').forEach((s) => { s.hidden = s.id !== id; });
  document.querySelectorAll('#pestanas a').forEach((a) => {
    if (a.getAttribute('href') === `#${id}`) a.setAttribute('aria-current', 'page');
    else a.removeAttribute('aria-current');
  });
  if (id === 'comparacion') {
    document.getElementById('nombre-comparacion').placeholder = nombreSugerido();
    dibujarComparacion();
  }
  if (id === 'validacion') mostrarValidacion();
}

async function iniciar() {
  const inicio = performance.now();
  try {
    Vanta.modulo = await VantaModulo();
  } catch (e) {
    document.getElementById('cargando').textContent = `Este navegador no puede ejecutar el cálculo (WebAssembly): ${e.message || e}`;
    return;
  }
  const datos = JSON.parse(Vanta.modulo.entradas());
  Object.assign(Vanta, datos);
  empezarCalculo();
  prepararArchivos();
  construirFormEstudio();
  prepararComparacion();
  prepararValidacion();
  document.getElementById('cargando').hidden = true;
  window.addEventListener('hashchange', mostrarSeccion);
  mostrarSeccion();
  // How long the page took from its start to the first result shown.
  Vanta.msPrimerResultado = performance.now();
  Vanta.msModulo = performance.now() - inicio;
  document.body.dataset.listo = 'si';
}

iniciar();
