// The game as it was built, served and opened in a browser, with a person before it.
import assert from "node:assert";
import { fileURLToPath } from "node:url";
import { Browser } from "./browser.mjs";
import { Person } from "./person.mjs";
import { serve } from "./server.mjs";

export const web = fileURLToPath(new URL("../../build/web/", import.meta.url));

export function report(text) {
    console.log(`  ${text}`);
}

// Opens the game in a browser of its own, so that nothing is left of another visit.
export async function opengame(query = "", size = {}, { folder = `${web}site`, server, browser } = {}) {
    const own = { server: server ?? (await serve(folder)), browser: browser ?? new Browser() };
    const page = await own.browser.open(own.server.url + query, size);
    const person = new Person(page);
    await person.settled();
    return {
        ...own, page, person,
        async close() {
            await page.close();
            browser || (await own.browser.close());
            server || (await own.server.stop());
            assert.deepEqual(page.errors, []);
        },
    };
}
