// Serves the built site on this machine's loopback, for a look at the page
// (./vanta web) and for its tests: node web/servir.mjs [FOLDER] [PORT].
// Port 0, or one in use, takes any free port; the address is printed.
import { createServer } from 'node:http';
import { readFile, stat } from 'node:fs/promises';
import { extname, join, normalize, resolve, sep } from 'node:path';
import { fileURLToPath } from 'node:url';

const kTipos = {
  '.html': 'text/html; charset=utf-8', '.js': 'text/javascript; charset=utf-8', '.css': 'text/css; charset=utf-8',
  '.json': 'application/json', '.svg': 'image/svg+xml', '.png': 'image/png', '.wasm': 'application/wasm',
};

export function servir(carpeta, puerto = 0) {
  const raiz = resolve(carpeta);
  const servidor = createServer(async (pedido, respuesta) => {
    try {
      const ruta = decodeURIComponent(new URL(pedido.url, 'http://localhost').pathname);
      let archivo = normalize(join(raiz, ruta));
      if (archivo !== raiz && !archivo.startsWith(raiz + sep)) throw new Error('fuera');
      if ((await stat(archivo)).isDirectory()) archivo = join(archivo, 'index.html');
      const datos = await readFile(archivo);
      respuesta.writeHead(200, { 'Content-Type': kTipos[extname(archivo)] || 'application/octet-stream', 'Cache-Control': 'no-cache' });
      respuesta.end(datos);
    } catch {
      respuesta.writeHead(404, { 'Content-Type': 'text/plain; charset=utf-8' });
      respuesta.end('No existe\n');
    }
  });
  return new Promise((resolver, rechazar) => {
    servidor.on('listening', () => resolver({ servidor, direccion: `http://127.0.0.1:${servidor.address().port}/` }));
    servidor.on('error', (e) => {
      if (e.code === 'EADDRINUSE' && puerto !== 0) servidor.listen(0, '127.0.0.1');
      else rechazar(e);
    });
    servidor.listen(puerto, '127.0.0.1');
  });
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const carpeta = process.argv[2] || 'build-web/sitio';
  const { direccion } = await servir(carpeta, Number(process.argv[3] ?? 8080));
  console.log(`Vanta en ${direccion} (Ctrl+C para parar)`);
}
