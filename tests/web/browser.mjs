// Chromium without a window, driven over its debugging pipe: JSON ended by NUL on file descriptors 3 and 4.
import { spawn } from "node:child_process";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";

const patience = 30000; // ms; what takes longer hangs

export class Browser {
    constructor(...flags) {
        this.profile = mkdtempSync(join(tmpdir(), "brindor-browser-"));
        this.process = spawn("chromium",
            ["--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--remote-debugging-pipe",
                "--no-first-run", `--user-data-dir=${this.profile}`, ...flags],
            { stdio: ["ignore", "ignore", "ignore", "pipe", "pipe"] });
        this.calls = new Map();
        this.pages = new Map();
        this.last = 0;
        let rest = "";
        this.process.stdio[4].setEncoding("utf8").on("data", (text) => {
            const messages = (rest + text).split("\0");
            rest = messages.pop();
            messages.forEach((message) => this.hear(JSON.parse(message)));
        });
    }

    hear({ id, sessionId, method, params, result, error }) {
        if (id === undefined) {
            this.pages.get(sessionId)?.hear(method, params);
            return;
        }
        const { done, failed, timer } = this.calls.get(id);
        clearTimeout(timer);
        this.calls.delete(id);
        error ? failed(new Error(error.message)) : done(result);
    }

    call(method, params = {}, sessionId = undefined) {
        const id = ++this.last;
        this.process.stdio[3].write(JSON.stringify({ id, method, params, sessionId }) + "\0");
        return new Promise((done, failed) => {
            const timer = setTimeout(() => failed(new Error(`no answer to ${method} ${params.expression}`)), patience);
            this.calls.set(id, { done, failed, timer });
        });
    }

    async open(url, { width = 1280, height = 800, touch = false } = {}) {
        const { targetId } = await this.call("Target.createTarget", { url: "about:blank" });
        const { sessionId } = await this.call("Target.attachToTarget", { targetId, flatten: true });
        const page = new Page(this, sessionId);
        this.pages.set(sessionId, page);
        await Promise.all(["Runtime.enable", "Log.enable", "Page.enable"].map((method) => page.call(method)));
        await page.size(width, height, touch);
        await page.go("Page.navigate", { url });
        return page;
    }

    async close() {
        if (this.process.exitCode === null && this.process.signalCode === null) {
            const gone = new Promise((done) => this.process.once("exit", done));
            await this.call("Browser.close").catch(() => this.process.kill("SIGKILL"));
            await gone;
        }
        rmSync(this.profile, { recursive: true, force: true, maxRetries: 5 });
    }
}

class Page {
    constructor(browser, session) {
        Object.assign(this, { browser, session, errors: [], said: [] });
    }

    call(method, params) {
        return this.browser.call(method, params, this.session);
    }

    // Goes to a page, or loads it anew; gives when it is there.
    go(method, params) {
        const there = new Promise((done) => (this.there = done));
        return Promise.all([this.call(method, params), there]);
    }

    // What the console says; what is an error there, and what nobody caught.
    hear(method, params) {
        if (method === "Runtime.consoleAPICalled") {
            const text = params.args.map(({ value, description }) => value ?? description).join(" ");
            this.said.push(text);
            ["error", "warning", "assert"].includes(params.type) && this.errors.push(text);
        } else if (method === "Runtime.exceptionThrown") {
            const { exception, text } = params.exceptionDetails;
            this.errors.push(exception?.description ?? text);
        } else if (method === "Log.entryAdded" && params.entry.level === "error") {
            this.errors.push(`${params.entry.text} ${params.entry.url ?? ""}`);
        } else if (method === "Page.domContentEventFired") {
            this.there?.();
        }
    }

    // Runs a function in the page and gives what it gives; waits for a promise.
    async run(code, ...values) {
        const { result, exceptionDetails } = await this.call("Runtime.evaluate", {
            expression: `(${code})(${values.map((value) => JSON.stringify(value)).join(", ")})`,
            awaitPromise: true, returnByValue: true,
        });
        if (exceptionDetails) {
            throw new Error(exceptionDetails.exception?.description ?? exceptionDetails.text);
        }
        return result.value;
    }

    async size(width, height, touch = this.touch) {
        this.touch = touch;
        await this.call("Emulation.setDeviceMetricsOverride",
            { width, height, deviceScaleFactor: 1, mobile: touch });
        await this.call("Emulation.setTouchEmulationEnabled", { enabled: touch });
    }

    async picture(file) {
        const { data } = await this.call("Page.captureScreenshot", {});
        writeFileSync(file, data, "base64");
    }
}
