// Someone who does at each moment anything that a person could do with mouse, finger and keyboard, drawn from a seed.
// BRINDOR_SEED repeats a run, BRINDOR_QUESTIONS sets its length.
import assert from "node:assert";
import { test } from "node:test";
import { opengame, report } from "./game.mjs";
import { alt, control, shift } from "./person.mjs";

const seed = Number(process.env.BRINDOR_SEED ?? Date.now() % 2 ** 31);
const questions = Number(process.env.BRINDOR_QUESTIONS ?? 500);

let state = seed;
function drawn(below) {
    state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
    return Math.floor((state / 2 ** 32) * below);
}
const oneof = (list) => list[drawn(list.length)];

const sizes = [[1280, 800, false], [1024, 768, false], [768, 1024, true], [360, 640, true], [500, 300, false]];
const keys = ["Tab", "Tab", "Enter", "Escape", "ArrowUp", "ArrowDown", "ArrowLeft", "ArrowRight", " ", "Home", "End",
    "Backspace", "Delete"];
const texts = ["", " ", "0", "7", "-44", "32767", "-32769", "1e9", "ca. 12", "Caesar", "zz", "ä€", "<b>&amp;"];

// What can be seen of the window in front, and whether it is a question that was not seen before.
function look() {
    const front = document.querySelector("dialog[open]") ??
        [...document.querySelectorAll("section.screen:not([inert])")].at(-1);
    const name = front?.dataset.screen ?? "";
    const fresh = ["mchoice", "qsort", "qmatch"].includes(name) && !front.dataset.seen;
    if (fresh) {
        front.dataset.seen = "yes";
    }
    const parts = "[data-control], [data-control] *, [role=option], button, label";
    const things = [...(front?.querySelectorAll(parts) ?? [])].map((thing) => {
        const { left, top, width, height } = thing.getBoundingClientRect();
        const ends = thing.closest("[data-control=cmdquit]") || (name === "main" && thing.closest("[data-close]"));
        const seen = !ends && width * height > 0 && left + width > 0 && left < innerWidth;
        return seen && { name: thing.dataset.control ?? thing.tagName, x: left + width / 2, y: top + height / 2 };
    }).filter(Boolean);
    return { name, fresh, things, state: document.documentElement.dataset.state, width: innerWidth,
        height: innerHeight };
}

const acts = [
    [24, "click", async (person, { thing }) => person.clickat(thing)],
    [6, "tap", async (person, { thing }) => person.tapat(thing)],
    [4, "drag", async (person, { thing, other }) => person.dragto(thing, other)],
    [2, "double", async (person, { thing }) => person.clickat(thing, { clickCount: 2 })],
    [1, "right", async (person, { thing }) => person.clickat(thing, { button: "right" })],
    [1, "anywhere", async (person, { width, height }) => person.clickat({ x: drawn(width), y: drawn(height) })],
    [3, "hurry", async (person, { thing, other }) => Promise.all(
        [thing, thing, other, thing].map((point) => person.clickat(point)))],
    [6, "key", async (person) => person.key(oneof(keys), oneof([0, 0, 0, shift]))],
    [1, "letter", async (person) => person.key(oneof([..."asdoephvcnw"]), alt)],
    [3, "type", async (person, { thing }) => {
        await person.clickat(thing);
        await person.key("a", control);
        await person.type(oneof(texts));
    }],
    [1, "wheel", async (person, { thing }) => person.input("Mouse",
        { type: "mouseWheel", ...thing, deltaX: 0, deltaY: drawn(400) - 200 })],
    [1, "size", async (person) => person.page.size(...oneof(sizes))],
    [1, "leave", async (person) => person.key("Escape")],
].flatMap(([often, ...act]) => Array(often).fill(act));

test("Something that a person does brings the game out of order", { timeout: 3600000 }, async (t) => {
    report(`BRINDOR_SEED=${seed}`);
    const { person, page, again } = await opengame(t, `?seed=${seed}`);
    const last = [];
    let asked = 0;
    let steps = 0;
    try {
        for (; asked < questions; ++steps) {
            const seen = await page.run(look);
            asked += seen.fresh;
            if (seen.state === "ended") {
                await again();
                continue;
            }
            const visible = seen.things.filter(({ y }) => y > 0 && y < seen.height);
            const thing = visible.length ? oneof(visible) : { x: 1, y: 1 };
            const [name, act] = oneof(acts);
            last.push(`${seen.name}: ${name} ${thing.name}`);
            await act(person, { ...seen, thing, other: visible.length ? oneof(visible) : thing });
            await person.settled();
            assert.deepEqual(page.errors, []);
        }
    } catch (fault) {
        fault.message += ` after step ${steps}, question ${asked}:\n  ${last.slice(-12).join("\n  ")}`;
        throw fault;
    }
    report(`${steps} steps, ${asked} questions`);
});
