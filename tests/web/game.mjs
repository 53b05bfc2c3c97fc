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

// Opens the game in a browser of its own, so that nothing is left of another visit. Both end with the test `t`, which
// fails where the console had something to say.
export async function opengame(t, query = "", size = {}, folders = [`${web}site`]) {
    const server = await serve(folders);
    t.after(() => server.stop());
    const browser = new Browser();
    t.after(() => browser.close());
    const page = await browser.open(server.url + query, size);
    t.after(() => assert.deepEqual(page.errors, []));
    const person = new Person(page);
    await person.settled();
    const again = async () => {
        await page.go("Page.reload");
        return person.settled();
    };
    return { server, browser, page, person, again };
}
