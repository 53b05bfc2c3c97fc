// What the page may cost: bytes, processor time until it waits, time from a click to the next question.
import assert from "node:assert";
import { readFileSync, readdirSync } from "node:fs";
import { test } from "node:test";
import { Browser } from "./browser.mjs";
import { opengame, report, web } from "./game.mjs";
import { answer, named, Person } from "./person.mjs";
import { serve } from "./server.mjs";

const mostbytes = 600 * 1024;
const mostseconds = 3;
const mostmilliseconds = 16;

// Seconds of processor time of a process and all that it has started.
function processortime(pid) {
    const processes = readdirSync("/proc").filter((name) => /^\d+$/.test(name)).flatMap((name) => {
        try {
            const fields = readFileSync(`/proc/${name}/stat`, "utf8").replace(/^.*\) /s, "").split(" ");
            return [{ pid: +name, parent: +fields[1], ticks: +fields[11] + +fields[12] }];
        } catch {
            return []; // it has ended
        }
    });
    const sum = (of) => processes.filter(({ parent }) => parent === of).reduce(
        (ticks, child) => ticks + sum(child.pid), processes.find((one) => one.pid === of)?.ticks ?? 0);
    return sum(pid) / 100;
}

test("The start takes too many bytes or too much time", async (t) => {
    const server = await serve([`${web}site`]);
    t.after(() => server.stop());
    const browser = new Browser();
    t.after(() => browser.close());
    const page = await browser.open("about:blank");
    const before = processortime(browser.process.pid);
    await page.go("Page.navigate", { url: server.url });
    const person = new Person(page);
    await person.settled();
    const seconds = processortime(browser.process.pid) - before;
    await person.clickat(await person.at(named("Command1")));
    const bytes = [...server.fetched].reduce((sum, [, size]) => sum + size, 0);
    report(`${seconds.toFixed(2)} s until it waits; ${bytes} bytes before the first question:`);
    server.fetched.forEach((size, name) => report(`${String(size).padStart(8)} ${name}`));
    assert.ok(bytes <= mostbytes, `${bytes} bytes`);
    assert.ok(seconds <= mostseconds, `${seconds} s`);
});

test("The next question comes late after the click", async (t) => {
    const { page, person } = await opengame(t, "?seed=3");
    await page.run(() => {
        const times = (globalThis.times = []);
        let clicked = 0;
        addEventListener("click", ({ timeStamp }) => (clicked = timeStamp), true);
        new MutationObserver(() => {
            if (!clicked || document.documentElement.dataset.state !== "waiting") {
                return;
            }
            const front = [...document.querySelectorAll("section.screen:not([inert])")].at(-1);
            if (/mchoice|qsort|qmatch/.test(front?.dataset.screen)) {
                front.getBoundingClientRect(); // laid out
                times.push(performance.now() - clicked);
            }
            clicked = 0;
        }).observe(document.documentElement, { attributeFilter: ["data-state"] });
    });
    const press = async (what) => person.clickat(await person.at(what));
    for (let questions = 0, front = "main"; questions < 60; front = await person.settled()) {
        questions += front === "showscor";
        await press(front === "message" ? answer("ok") : named(front === "mchoice" ? "choice(1)" : "Command1"));
    }
    const times = (await page.run(() => globalThis.times)).sort((a, b) => a - b);
    const median = times[Math.floor(times.length / 2)];
    report(`${times.length} questions: median ${median.toFixed(1)} ms, worst ${times.at(-1).toFixed(1)} ms`);
    assert.ok(times.length >= 50, `${times.length} questions`);
    assert.ok(median < mostmilliseconds, `${median} ms`);
});
