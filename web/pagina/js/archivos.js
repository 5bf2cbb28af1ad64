// The reports as files: the text report as the program saves it, and the
// HTML page with its seven pictures, as Windows bitmaps beside it, in a zip.
'use strict';

// A picture (SVG) drawn at its own size into pixels.
function pixelesDe(svg) {
  return new Promise((resolver, rechazar) => {
    const imagen = new Image();
    imagen.onload = () => {
      const lienzo = document.createElement('canvas');
      lienzo.width = imagen.width;
      lienzo.height = imagen.height;
      const ctx = lienzo.getContext('2d');
      ctx.drawImage(imagen, 0, 0);
      resolver(ctx.getImageData(0, 0, lienzo.width, lienzo.height));
    };
    imagen.onerror = () => rechazar(new Error('no se puede dibujar una imagen'));
    imagen.src = `data:image/svg+xml;charset=utf-8,${encodeURIComponent(svg)}`;
  });
}

// A Windows bitmap of 24 bits from the pixels: rows from the bottom, each
// padded to four bytes.
function bmpDe(pixeles) {
  const { width: ancho, height: alto, data } = pixeles;
  const fila = Math.ceil((ancho * 3) / 4) * 4;
  const tamano = 54 + fila * alto;
  const b = new Uint8Array(tamano);
  const v = new DataView(b.buffer);
  b[0] = 0x42; b[1] = 0x4d;                   // "BM"
  v.setUint32(2, tamano, true);
  v.setUint32(10, 54, true);                  // where the pixels start
  v.setUint32(14, 40, true);                  // BITMAPINFOHEADER
  v.setInt32(18, ancho, true);
  v.setInt32(22, alto, true);
  v.setUint16(26, 1, true);
  v.setUint16(28, 24, true);
  v.setUint32(34, fila * alto, true);
  v.setInt32(38, 3780, true);                 // 96 dots per inch
  v.setInt32(42, 3780, true);
  for (let y = 0; y < alto; y++) {
    const destino = 54 + (alto - 1 - y) * fila;
    for (let x = 0; x < ancho; x++) {
      const o = (y * ancho + x) * 4;
      b[destino + 3 * x] = data[o + 2];
      b[destino + 3 * x + 1] = data[o + 1];
      b[destino + 3 * x + 2] = data[o];
    }
  }
  return b;
}

async function descargarPagina() {
  const boton = document.getElementById('descargar-pagina');
  boton.disabled = true;
  try {
    const archivos = { [Vanta.nombrePagina]: Calculo.calculadora.paginaHTML() };
    for (let i = 0; i < Vanta.imagenesPagina.length; i++)
      archivos[Vanta.imagenesPagina[i]] = bmpDe(await pixelesDe(Calculo.calculadora.imagen(i)));
    descargar('pagina-vanta.zip', new Blob([fflate.zipSync(archivos)], { type: 'application/zip' }));
  } catch (e) {
    mostrarMensajes(document.getElementById('mensajes'), [`No se ha podido preparar la página: ${e.message}`]);
  } finally {
    boton.disabled = !(Calculo.ultimo && Calculo.ultimo.bien);
  }
}

function prepararArchivos() {
  document.getElementById('descargar-informe').addEventListener('click', () =>
    descargar('informe.txt', Calculo.calculadora.informeArchivo(), 'text/plain;charset=utf-8'));
  document.getElementById('descargar-pagina').addEventListener('click', descargarPagina);
}
