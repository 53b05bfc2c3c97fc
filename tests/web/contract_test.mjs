// The stories of tests/toolkit on the page: the test program runs there and asks for one act after the other.
import assert from "node:assert";
import { test } from "node:test";
import { opengame, report, web } from "./game.mjs";
import { alt, answer, control, front, line, named } from "./person.mjs";

// Notes where controls are seen, near the left edge, where no bar covers a description: a person may still click there
// when one has gone. Gives the place of the one wanted.
const seenat = (page, wanted) => page.run((wanted) => {
    const known = (globalThis.known ??= {});
    for (const one of document.querySelectorAll("[data-control]")) {
        const { left, top, width, height } = one.getBoundingClientRect();
        if (width * height > 0) {
            const name = `${one.closest("section.screen").dataset.screen}.${one.dataset.control}`;
            known[name] = { x: left + Math.min(6, width / 2), y: top + height / 2 };
        }
    }
    return known[wanted];
}, wanted);

// For what lies below the window in front, that is moved aside.
async function where(person, act) {
    if (act.on !== act.screen && act.on !== "message") {
        const bar = await person.at(`${front} header`, 0.2);
        await person.dragto(bar, { ...bar, x: bar.x + 200 });
    }
    return seenat(person.page, `${act.screen}.${act.control}`);
}

const key = (name) => async (person) => person.key(name);
const click = async (person, act) => person.clickat(await where(person, act));
const half = (name) => async (person, act) =>
    person.clickat(await person.at(`${named(act.control)} button:nth-child(${name})`));
const answered = (which) => async (person) => person.clickat(await person.at(`${answer(which)}, ${answer("ok")}`));

async function pick(person, act, clickCount = 1) {
    if (act.control === "combo") {
        await person.clickat(await person.at(`${named("combo")} ~ button`));
        return person.clickat(await person.at(`#popup [role=option]:nth-child(${+act.more + 1})`));
    }
    return person.clickat(await person.at(line(act.control, +act.more)), { clickCount });
}

const verbs = {
    click, pick,
    right: async (person, act) => person.clickat(await where(person, act), { button: "right" }),
    twice: async (person, act) => {
        await pick(person, act);
        return pick(person, act, 2);
    },
    space: async (person, act) => {
        await person.tabto(named(act.control));
        await person.key(" ");
    },
    alt: async (person) => person.key("g", alt),
    type: async (person, act) => {
        await click(person, act);
        await person.key("End", control);
        await person.type(act.more);
    },
    press: async (person, act) => {
        const at = await where(person, act);
        await person.mouse("Moved", at, { button: "none" });
        await person.mouse("Pressed", at);
    },
    letgo: async (person, act) => person.letgoat(await where(person, act)),
    stepup: half(1), stepdown: half(2),
    resize: async (person, act) => {
        const { at, to } = await person.page.run((what, width) => {
            const window = document.querySelector(what);
            const { right, bottom, width: seen } = window.getBoundingClientRect();
            const scale = seen / window.offsetWidth;
            const at = { x: right - 3 * scale, y: bottom - 3 * scale };
            return { at, to: { ...at, x: at.x + ((width - window.offsetWidth) * scale) / 2 } }; // it grows both ways
        }, front, +act.more + 4);
        await person.mouse("Moved", at, { button: "none" });
        await person.mouse("Pressed", at);
        await person.letgoat(to);
    },
    up: key("ArrowUp"), return: key("Enter"), escape: key("Escape"),
    close: async (person, act) =>
        person.clickat(await person.at(`section.screen[data-screen="${act.screen}"] [data-close]`)),
    yes: answered("yes"), no: answered("no"),
};

test("The page breaks a promise that hosts give", async (t) => {
    const { page, person } = await opengame(t, "", {}, [`${web}contract`, `${web}site`]);
    for (let on = await person.settled(); on; on = await person.settled()) {
        await seenat(page, "");
        const act = await page.run(() => globalThis.stage.acts[0]);
        const mine = act?.on === on;
        if (!mine || act.program) {
            await page.run((mine) => {
                const { acts, act } = globalThis.stage;
                act(mine ? acts.shift().number : -1);
            }, mine);
        } else {
            await page.run(() => globalThis.stage.acts.shift());
            await verbs[act.verb](person, act);
        }
    }
    const told = page.said.join("\n");
    const [, stories] = told.match(/Running (\d+) tests/);
    assert.doesNotMatch(told, /FAILED/);
    assert.match(told, new RegExp(`PASSED.* ${stories} tests`));
    report(`${stories} stories`);
});
