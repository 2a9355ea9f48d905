// Times reading the layer names with each peer, as quickly as its interface allows: pixels, previews and thumbnails
// are left out wherever it can. psd finds no layers in any .psb document, so it has no figure there.
// Usage: node peers.js WORK-FOLDER DOCUMENT-FOLDER RESULT.json
'use strict';
const fs = require('fs');
const path = require('path');
const { createRequire } = require('module');
const { pathToFileURL } = require('url');

const [workFolder, documentFolder, resultFile] = process.argv.slice(2);
const requirePeer = createRequire(path.join(path.resolve(workFolder), 'peers.js'));
const pieceBytes = 1 << 30; // one read call takes less than 2 GB
const timeBudgetMs = 3000;
const maxRuns = 50;

function readWhole(file) {
    const size = fs.statSync(file).size;
    const bytes = Buffer.from(new ArrayBuffer(size));
    const descriptor = fs.openSync(file, 'r');
    for (let at = 0; at < size;)
        at += fs.readSync(descriptor, bytes, at, Math.min(pieceBytes, size - at), at);
    fs.closeSync(descriptor);
    return bytes;
}

function flatten(layers) {
    return layers.flatMap(layer => (layer.children ? flatten(layer.children) : [layer.name]));
}

async function peers() {
    const { readPsd } = requirePeer('ag-psd');
    const webtoon = await import(pathToFileURL(requirePeer.resolve('@webtoon/psd')).href);
    const Webtoon = webtoon.default && webtoon.default.parse ? webtoon.default : webtoon.default.default;
    const PsdJs = requirePeer('psd');
    return {
        'ag-psd': file => flatten(readPsd(readWhole(file), {
            skipLayerImageData: true, skipCompositeImageData: true, skipThumbnail: true,
            skipLinkedFilesData: true,
        }).children || []),
        '@webtoon/psd': file => Webtoon.parse(readWhole(file).buffer).layers.map(layer => layer.name),
        'psd': file => {
            const document = new PsdJs(readWhole(file));
            document.parse();
            return document.tree().descendants().filter(node => node.isLayer()).map(node => node.name);
        },
    };
}

// The quickest of as many runs as the time budget allows, in milliseconds; nothing when the peer fails.
function quickestMs(read, document) {
    const times = [];
    const begin = process.hrtime.bigint();
    try {
        do {
            const start = process.hrtime.bigint();
            const names = read(document.file);
            times.push(Number(process.hrtime.bigint() - start) / 1e6);
            if (names.length !== document.layers) {
                console.error(`  ${names.length} names instead of ${document.layers}`);
                return undefined;
            }
        } while (times.length < maxRuns && Number(process.hrtime.bigint() - begin) / 1e6 < timeBudgetMs);
    } catch (error) {
        console.error(`  ${error.message}`);
        return undefined;
    }
    return Math.min(...times);
}

async function main() {
    const documents = fs.readFileSync(path.join(documentFolder, 'documents.txt'), 'utf8').trim().split('\n')
        .map(line => line.split('\t'))
        .map(([title, file, layers]) => ({ title, file: path.join(documentFolder, file), layers: Number(layers) }));
    const readers = await peers();
    const benchmarks = [];
    for (const document of documents) {
        let fastest;
        for (const [name, read] of Object.entries(readers)) {
            const ms = quickestMs(read, document);
            console.log(`${document.title}: ${name} ${ms === undefined ? 'fails' : `${ms.toFixed(2)} ms`}`);
            if (ms !== undefined && (!fastest || ms < fastest.ms))
                fastest = { name, ms };
        }
        if (fastest)
            benchmarks.push({
                name: `psd names, ${document.title}/peer:${fastest.name.replace('/', ' ')}`,
                run_type: 'iteration', real_time: fastest.ms, time_unit: 'ms',
            });
    }
    fs.writeFileSync(resultFile, JSON.stringify({ benchmarks }, null, 1));
}

main();
