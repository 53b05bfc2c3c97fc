import assert from "node:assert";
import { cpSync, existsSync, mkdtempSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import { opengame, web } from "./game.mjs";
import { answer, control, front, hands, named } from "./person.mjs";

async function start(t) {
    const folder = mkdtempSync(join(tmpdir(), "brindor-own-"));
    t.after(() => rmSync(folder, { recursive: true }));
    const game = await opengame(t);
    return { ...game, folder, press: hands.mouse(game.person).press };
}

test("Settings are lost with the page, or the log cannot be saved", async (t) => {
    const { browser, page, person, folder, press, again } = await start(t);
    await press(named("cmdsetup"));
    await press(named("nquestion"));
    await person.key("a", control);
    await person.type("3");
    await press(named("cmdok"));
    await again();
    await press(named("cmdsetup"));
    assert.equal(await person.text("nquestion"), "3");
    await press(named("cmdok"));
    await press(named("Command1"));
    await browser.call("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: folder });
    await press("#tools button");
    const log = join(folder, "bdqquiz.log");
    for (let waited = 0; !existsSync(log) && waited < 100; ++waited) {
        await new Promise((done) => setTimeout(done, 50));
    }
    assert.match(readFileSync(log, "latin1"), /^---- Question 1\r\n/);
});

test("A timeline dropped on the page is not played, is lost with the page, or cannot be removed", async (t) => {
    const { page, person, folder, press, again } = await start(t);
    const statistics = async () => {
        for (const button of ["cmdsetup", "cmdEdit", "Command2"]) {
            await press(named(button));
        }
        return (await page.run((what) => document.querySelector(what).innerText, front)).match(/\d+ people/)[0];
    };
    const shipped = await statistics();
    const file = join(folder, "Ancient.bd3");
    cpSync(`${web}site/Modern.bd3`, file);
    const data = { items: [], files: [file], dragOperationsMask: 1 };
    for (const type of ["dragEnter", "dragOver", "drop"]) {
        await person.input("Drag", { type, x: 300, y: 300, data });
    }
    const restarted = async () => {
        await page.run(async (yes) => {
            while (!document.querySelector(yes)) {
                await new Promise((done) => setTimeout(done, 20));
            }
        }, answer("yes"));
        const there = page.go("Runtime.enable");
        await press(answer("yes")).catch(() => {}); // the page goes away meanwhile
        await there;
        await person.settled();
    };
    await restarted();
    const dropped = await statistics();
    await again();
    assert.equal(await statistics(), dropped);
    assert.notEqual(dropped, shipped);
    await press("#tools button:nth-last-of-type(1)");
    await restarted();
    assert.equal(await statistics(), shipped);
});
