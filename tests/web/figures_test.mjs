// What the page may cost: bytes, processor time until it waits, time from a click to the next question.
import assert from "node:assert";
import { test } from "node:test";
import { Browser } from "./browser.mjs";
import { opengame, report, web } from "./game.mjs";
import { answer, named, Person } from "./person.mjs";
import { serve } from "./server.mjs";

const mostbytes = 600 * 1024;
const mostseconds = 3;
const mostmilliseconds = 16;

// Seconds that all processes of the browser have worked.
async function processortime(browser) {
    const { processInfo } = await browser.call("SystemInfo.getProcessInfo");
    return processInfo.reduce((sum, { cpuTime }) => sum + cpuTime, 0);
}

test("The start takes too many bytes or too much time", async (t) => {
    const server = await serve([`${web}site`]);
    t.after(() => server.stop());
    const browser = new Browser();
    t.after(() => browser.close());
    const page = await browser.open("about:blank");
    const before = await processortime(browser);
    await page.go("Page.navigate", { url: server.url });
    const person = new Person(page);
    await person.settled();
    const seconds = (await processortime(browser)) - before;
    await person.clickat(await person.at(named("Command1")));
    const bytes = [...server.fetched].reduce((sum, [, size]) => sum + size, 0);
    report(`${seconds.toFixed(2)} s until it waits; ${bytes} bytes before the first question:`);
    server.fetched.forEach((size, name) => report(`${String(size).padStart(8)} ${name}`));
    assert.ok(bytes <= mostbytes, `${bytes} bytes`);
    assert.ok(seconds <= mostseconds, `${seconds} s`);
});

// Gives a procedure that tells how many milliseconds the page itself has worked; what else the machine does is not in it.
async function stopwatch(page) {
    await page.call("Performance.enable", { timeDomain: "threadTicks" });
    return async () => (await page.call("Performance.getMetrics")).metrics.find(
        ({ name }) => name === "TaskDuration").value * 1000;
}

test("The next question comes late after the click", async (t) => {
    const { page, person } = await opengame(t, "?seed=3");
    const worked = await stopwatch(page);
    const times = [];
    for (let front = "main"; times.length < 60;) {
        const before = await worked();
        const on = front;
        front = await person.clickat(await person.at(
            front === "message" ? answer("ok") : named(front === "mchoice" ? "choice(1)" : "Command1")));
        if (on === "showscor" && front !== "message") {
            times.push((await worked()) - before);
        }
    }
    times.sort((a, b) => a - b);
    const [median, worst] = [times[30], times[59]].map((time) => `${time.toFixed(1)} ms`);
    report(`the page works until the next question: median ${median}, worst ${worst}`);
    assert.ok(times[30] < mostmilliseconds, median);
});

test("The page works while nobody acts", async (t) => {
    const { page, person } = await opengame(t);
    const worked = await stopwatch(page);
    await person.clickat(await person.at(named("Command1")));
    await new Promise((done) => setTimeout(done, 2000)); // what the start has left to do
    const [turn, before] = [await page.run(() => document.documentElement.dataset.turn), await worked()];
    await new Promise((done) => setTimeout(done, 3000));
    const milliseconds = (await worked()) - before;
    report(`${milliseconds.toFixed(1)} ms of work in 3 s in which nobody acts`);
    assert.equal(await page.run(() => document.documentElement.dataset.turn), turn);
    assert.ok(milliseconds < 10, `${milliseconds} ms`);
});
