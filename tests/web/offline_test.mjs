import assert from "node:assert";
import { execFileSync } from "node:child_process";
import { appendFileSync, cpSync, mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { Browser } from "./browser.mjs";
import { opengame, web } from "./game.mjs";
import { hands, named, Person } from "./person.mjs";

const version = fileURLToPath(new URL("../../src/toolkit/web/page/version.mjs", import.meta.url));
const folder = mkdtempSync(join(tmpdir(), "brindor-site-"));
cpSync(`${web}site`, folder, { recursive: true });
after(() => rmSync(folder, { recursive: true }));

// Another version of the page, which ends in a comment; half done, where its worker does not know all of it.
function publish(text, half) {
    appendFileSync(join(folder, "index.html"), `<!--${text}-->`);
    execFileSync("node", [version, folder]);
    half && appendFileSync(join(folder, "index.html"), "<!--half-->");
}
const versionof = (page) => page.run(() => document.lastChild.data ?? "as built");

const kept = (page) => page.run(async () => {
    const workers = navigator.serviceWorker;
    workers.controller ?? (await new Promise((done) => workers.addEventListener("controllerchange", done)));
    const { active } = await workers.ready;
    active.state === "activated" || (await new Promise((done) => active.addEventListener("statechange", done)));
});

// The worker looks for another version and is done with it, whatever it finds.
const updated = (page) => page.run(async () => {
    const registration = await navigator.serviceWorker.ready;
    await registration.update().catch(() => {});
    while (registration.installing || registration.waiting || registration.active.state !== "activated") {
        await new Promise((done) => setTimeout(done, 20));
    }
});

// Shows the first events' maps, one after the other; gives the width of each.
async function maps({ page, person }, count) {
    const { press } = hands.mouse(person);
    for (const button of ["cmdsetup", "cmdEdit", "cmdEvents"]) {
        await press(named(button));
    }
    const widths = [];
    for (let event = 0; event < count; ++event) {
        widths.push(await page.run((what) => document.querySelector(what).naturalWidth, `${named("Eimage")} img`));
        await press(named("cmdNext"));
    }
    return widths;
}

test("With the network gone the game does not start, or a map that was seen is lost", async (t) => {
    const game = await opengame(t, "", {}, [folder]);
    const seen = await maps(game, 2);
    assert.ok(Math.min(...seen) > 100, `${seen}`);
    await kept(game.page);
    await game.page.run(async () => {
        const shown = performance.getEntriesByType("resource").filter((e) => e.initiatorType === "img");
        for (const { name } of shown.filter((e) => e.name.startsWith(location.origin))) {
            while (!(await caches.match(name))) {
                await new Promise((done) => setTimeout(done, 20));
            }
        }
    });
    await game.server.stop();
    assert.equal(await game.again(), "main");
    assert.deepEqual(await maps(game, 2), seen);
});

test("A newer version is never taken, or taken though a part of it is missing", async (t) => {
    const game = await opengame(t, "", {}, [folder]);
    const versions = [];
    await kept(game.page);
    for (const [text, half] of [["new", true], ["newer", false]]) {
        publish(text, half);
        await updated(game.page);
        versions.push(await versionof(game.page));
        await game.again();
        versions.push(await versionof(game.page));
    }
    assert.deepEqual(versions, ["as built", "as built", "as built", "newer"]);
});

test("The one file does not play by itself", async (t) => {
    const browser = new Browser();
    t.after(() => browser.close());
    const page = await browser.open(pathToFileURL(`${web}brindor.html`));
    const person = new Person(page);
    const { press } = hands.mouse(person);
    assert.equal(await person.settled(), "main");
    await press(named("cmdsetup"));
    await press(named("cmdok"));
    assert.match(await press(named("Command1")), /^(mchoice|qsort|qmatch)$/);
    assert.deepEqual(page.errors, []);
});
