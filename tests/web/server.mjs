// A server of static files on 127.0.0.1 as schools have them: compressed where the browser takes that, with a mark of
// the content by which a browser asks again. The first of the folders that has a file gives it. `fetched` counts the
// bytes of each file that went out.
import { createHash } from "node:crypto";
import { once } from "node:events";
import { existsSync, readFileSync } from "node:fs";
import { createServer } from "node:http";
import { extname, join, normalize } from "node:path";
import { gzipSync } from "node:zlib";

const types = {
    ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".wasm": "application/wasm",
    ".svg": "image/svg+xml", ".png": "image/png", ".jpg": "image/jpeg",
};

function answer(folders, fetched, request, response) {
    const path = normalize(decodeURIComponent(new URL(request.url, "http://here").pathname));
    const name = path.endsWith("/") ? path + "index.html" : path;
    const folder = folders.find((one) => existsSync(join(one, name)));
    if (!folder) {
        response.writeHead(404).end();
        return;
    }
    let content = readFileSync(join(folder, name));
    const type = types[extname(name)] ?? "application/octet-stream";
    const etag = `"${createHash("sha256").update(content).digest("hex").slice(0, 16)}"`;
    const head = { "Content-Type": type, ETag: etag, "Cache-Control": "no-cache", Vary: "Accept-Encoding" };
    if (request.headers["if-none-match"] === etag) {
        response.writeHead(304, head).end();
        return;
    }
    if (!/png|jpeg/.test(type) && /gzip/.test(request.headers["accept-encoding"])) {
        content = gzipSync(content);
        head["Content-Encoding"] = "gzip";
    }
    fetched.set(name, (fetched.get(name) ?? 0) + content.length);
    response.writeHead(200, head).end(content);
}

export async function serve(folders, port = 0) {
    const fetched = new Map();
    const server = createServer((request, response) => answer(folders, fetched, request, response));
    await once(server.listen(port, "127.0.0.1"), "listening");
    return {
        fetched,
        url: `http://127.0.0.1:${server.address().port}/`,
        stop() {
            server.closeAllConnections();
            return new Promise((done) => server.close(() => done()));
        },
    };
}
