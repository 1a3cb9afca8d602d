// What an assistant does with a studio, by both transports; the transcript is for reading.
import assert from 'node:assert/strict';
import net from 'node:net';
import path from 'node:path';
import { setTimeout as sleep } from 'node:timers/promises';
import { Assistant, transports } from './Assistant.mjs';
import { buildSmallHouse } from './Small_House.mjs';
import { Studio } from './Studio.mjs';

async function meetsTheStudio(assistant) {
  assert.equal(assistant.ids[0], 0);
  assert.deepEqual(assistant.client.getServerVersion(), { name: 'RZ8800-Studio-MCP', version: '1.0' });
  const { tools } = await assistant.client.listTools();
  assert.ok(tools.every((tool) => tool.description && tool.inputSchema.type === 'object'));
  assert.match(await assistant.failure('brew_coffee'), /^(Kein Projekt geoeffnet|Unbekanntes Werkzeug: brew_coffee)$/);
  // Requests and notifications that the studio does not know disturb nothing.
  await assert.rejects(assistant.client.ping(), { code: -32601 });
  await assistant.client.notification({ method: 'notifications/cancelled', params: { requestId: 99 } });
  assert.equal((await assistant.client.listTools()).tools.length, tools.length);
}

/** While a tool of one assistant waits for a controller that never answers, the other is told to wait. */
async function oneAfterTheOther(first, second) {
  const silent = net.createServer().listen(0, '127.0.0.1');
  await new Promise((resolve) => silent.once('listening', resolve));
  await first.call('add_connection', { name: 'Stumm', ip: `127.0.0.1:${silent.address().port}` });
  const waiting = first.failure('connect_runtime', { timeout_seconds: 3 });
  await sleep(500);
  assert.equal(await second.failure('get_project_info'),
    'Es laeuft bereits ein Werkzeugaufruf — bitte dessen Antwort abwarten');
  assert.ok((await second.client.listTools()).tools.length > 0);
  assert.equal(await waiting, 'Keine Verbindung zur Runtime (Zeitueberschreitung)');
  await second.call('get_project_info');
  silent.close();
}

const [studioProgram, standinProgram, folder] = process.argv.slice(2);
const studio = await Studio.start(studioProgram, standinProgram, folder);
const transcript = path.join(folder, 'transcript.txt');
console.log(`Transcript: ${transcript}`);
const assistants = [];
for (const [number, transport] of Object.keys(transports).entries()) {
  const assistant = await Assistant.connect(transport, studio.url, transcript);
  await meetsTheStudio(assistant);
  await buildSmallHouse(assistant, studio, `Haus ${number + 1}.zpro`);
  // All that the SDK may complain of is the answer to a notification.
  assert.ok(assistant.errors.every((error) => error.message.includes('notifications/cancelled')), assistant.errors);
  assistants.push(assistant);
}
await oneAfterTheOther(...assistants);
for (const assistant of assistants) {
  console.log(`${assistant.transport}: ${assistant.ids.length} requests`);
  await assistant.close();
}
studio.stop();
