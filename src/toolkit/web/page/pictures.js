// The pictures that the program holds, by the numbers that it knows them by.
const pictures = new Map();
let last = 0;

const errors = { missing: 1, damaged: 3, toolarge: 4 };
const mostpixels = 64e6;

// What the page is shipped with under another name than the program's.
const shipped = new Map([['TITLE.BMP', 'title.jpg']]);

// "id width height error", as toolkit/web/page.h says.
export async function fetchpicture(file) {
    const name = shipped.get(file) ?? file;
    const address = globalThis.embedded?.[name] ?? name.split('/').map(encodeURIComponent).join('/');
    const image = new Image();
    image.src = address;
    try {
        await image.decode();
    } catch {
        const found = await fetch(address, { method: 'HEAD' }).then((answer) => answer.ok, () => false);
        return `0 0 0 ${found ? errors.damaged : errors.missing}`;
    }
    if (image.naturalWidth * image.naturalHeight > mostpixels) {
        return `0 0 0 ${errors.toolarge}`;
    }
    last += 1;
    pictures.set(last, image.src);
    return `${last} ${image.naturalWidth} ${image.naturalHeight} 0`;
}

export function forgetpicture(id) {
    pictures.delete(id);
}

// The address of a picture; empty for 0, which is none.
export function addressof(id) {
    return pictures.get(id) ?? '';
}
