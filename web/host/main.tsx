// Draws the state whenever it has changed.
import {render} from 'preact';
import {App, type Notice} from './app.tsx';
import {Connection} from './connection.ts';
import type {Scene} from './scene.ts';

const line = new Connection();
let notice: Notice | null = null;
let isScheduled = false;

function draw(): void {
  isScheduled = false;
  render(<App line={line} notice={notice} made={scene => { page.scene = scene; }}/>, document.getElementById('page')!);
}

function later(): void {
  if (isScheduled) return;
  isScheduled = true;
  queueMicrotask(draw);
}

/// For those who try the page.
const page: {line: Connection; scene: Scene | null} = {line, scene: null};
(window as {hostPage?: typeof page}).hostPage = page;

line.onChange = later;
line.onRefused = text => {
  notice = {n: (notice?.n ?? 0) + 1, text};
  later();
};
draw();
line.start();
