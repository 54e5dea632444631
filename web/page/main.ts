// Reads the two data blocks of the page and shows them.
import {readPartsList} from '../list/parts_list.ts';
import {readGlb} from '../model/glb.ts';
import type {Model} from '../model/model.ts';
import {App} from './app.ts';
import {texts} from './texts.ts';

function blockText(id: string): string {
  return document.getElementById(id)?.textContent?.trim() ?? '';
}

// Uint8Array.from with a function takes twenty times as long.
function bytesOf(base64: string): Uint8Array {
  const text = atob(base64), bytes = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i) bytes[i] = text.charCodeAt(i);
  return bytes;
}

function readModel(): {model: Model | null; problem: string} {
  const base64 = blockText('model');
  if (!base64) return {model: null, problem: texts.noModel};
  try {
    return {model: readGlb(bytesOf(base64)), problem: ''};
  } catch (error) {
    return {model: null, problem: texts.badModel + (error as Error).message};
  }
}

function start(): void {
  try {
    const list = readPartsList(JSON.parse(blockText('parts')));
    const {model, problem} = readModel();
    (window as {partsPage?: App}).partsPage = new App(list, model, problem);
  } catch (error) {
    const note = document.createElement('p');
    note.className = 'problem';
    note.setAttribute('role', 'alert');
    note.textContent = texts.badList + (error as Error).message;
    document.body.replaceChildren(note);
  }
}

start();
