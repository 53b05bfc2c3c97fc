// The pictures that the program holds, by the numbers that it knows them by.
const pictures = new Map();
let last = 0;

const errors = { missing: 1, damaged: 3, toolarge: 4 };
const mostpixels = 64e6;

// What the page is shipped with under another name than the program's.
const shipped = new Map([['TITLE.BMP', 'title.jpg']]);

// The maps do not come with the one file that opens by itself.
const nomap = `data:image/svg+xml,${encodeURIComponent(`<svg xmlns="http://www.w3.org/2000/svg" width="640" height="480">
<rect width="640" height="480" fill="#e8eef4"/><text x="320" y="240" font-family="sans-serif" font-size="24"
text-anchor="middle">The maps come with the game’s folder.</text></svg>`)}`;

async function decoded(address) {
    const image = new Image();
    image.src = address;
    await image.decode();
    return image;
}

// The picture of an address; a number that says why there is none.
async function pictureof(address) {
    try {
        const image = await decoded(address);
        return image.naturalWidth * image.naturalHeight > mostpixels ? errors.toolarge : image;
    } catch {
        if (globalThis.embedded) {
            return decoded(nomap);
        }
        const found = await fetch(address, { method: 'HEAD' }).then((answer) => answer.ok, () => false);
        return found ? errors.damaged : errors.missing;
    }
}

// "id width height error", as toolkit/web/page.h says.
export async function fetchpicture(file) {
    const name = shipped.get(file) ?? file;
    const image = await pictureof(globalThis.embedded?.[name] ?? name.split('/').map(encodeURIComponent).join('/'));
    if (typeof image === 'number') {
        return `0 0 0 ${image}`;
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
