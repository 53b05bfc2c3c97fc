// Every screen at the sizes of a phone, a laptop with the browser's zoom at 200 %, a tablet, and a laptop: pictures to
// look at, and nothing of it is out of reach.
import assert from "node:assert";
import { mkdirSync } from "node:fs";
import { test } from "node:test";
import { opengame, web } from "./game.mjs";
import { answer, named } from "./person.mjs";

const folder = `${web}screenshots`;
mkdirSync(folder, { recursive: true });

// Controls in front that nobody could press, as they lie outside the page, under another, or are too small for a finger;
// and a page that is wider than what is seen of it.
function outofreach() {
    const front = document.querySelector("dialog[open]") ??
        [...document.querySelectorAll("section.screen:not([inert])")].at(-1);
    const wrong = document.documentElement.scrollWidth > innerWidth ? ["the page is wider than its window"] : [];
    for (const thing of front.querySelectorAll("button, input, textarea, [role=option], [data-control=Eimage]")) {
        if (!thing.checkVisibility({ visibilityProperty: true }) || thing.disabled) {
            continue;
        }
        thing.scrollIntoView({ block: "nearest", inline: "nearest", behavior: "instant" });
        const { left, top, width, height } = thing.getBoundingClientRect();
        if (innerWidth < 700 && height < 44 && thing.matches("button, [role=option]")) {
            wrong.push(`${thing.textContent} is ${height} pixels high`);
        }
        const hit = document.elementFromPoint(left + width / 2, top + height / 2);
        if (!hit || !(thing.contains(hit) || hit.contains(thing) || hit.closest("label")?.contains(thing))) {
            wrong.push(`${thing.dataset.control ?? thing.outerHTML.slice(0, 60)} under ${hit?.outerHTML.slice(0, 60)}`);
        }
    }
    front.querySelectorAll("*").forEach((thing) => (thing.scrollTop = 0));
    scrollTo(0, 0);
    return wrong;
}

for (const [width, height, touch] of [[360, 640, true], [640, 400, false], [768, 1024, true], [1280, 800, false]]) {
    test(`At ${width} pixels something is out of reach`, async (t) => {
        const { page, person } = await opengame(t, "?seed=11", { width, height, touch });
        const wrong = [];
        const seen = new Set();
        const look = async (front) => {
            if (!seen.has(front)) {
                seen.add(front);
                await page.picture(`${folder}/${width}-${front}.png`);
                wrong.push(...(await page.run(outofreach)).map((what) => `${front}: ${what}`));
            }
            return front;
        };
        const press = async (what) => look(await person.clickat(await person.at(what)));
        const close = async () => press("section.screen:not([inert]) [data-close]");
        await look(await person.settled());
        await press(named("cmdCatalog"));
        await press("dialog[open] button");
        for (const into of ["cmdsetup", "cmdEdit", "Command2"]) {
            await press(named(into));
        }
        await close();
        await press(named("cmdPeople"));
        await close();
        await press(named("cmdEvents"));
        await press(named("Eimage"));
        for (let front = "ImgDisp"; front !== "main"; front = await close());
        for (let games = 0, front = "main"; games < 8 || front !== "main"; games += front === "message") {
            const done = { message: answer("ok"), mchoice: named("choice(2)") };
            front = await press(done[front] ?? named("Command1"));
        }
        assert.deepEqual([...seen].sort(), ["ImgDisp", "PEntry", "bdqedit", "curStats", "eEntry", "main", "mchoice",
            "message", "qmatch", "qsort", "setup", "showscor", "viewer"]);
        assert.deepEqual(wrong, []);
    });
}
