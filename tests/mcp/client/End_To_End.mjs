// What an assistant does with a studio, by both transports; the transcript is for reading.
import assert from 'node:assert/strict';
import path from 'node:path';
import { Assistant, transports } from './Assistant.mjs';
import { Studio } from './Studio.mjs';

async function meetsTheStudio(assistant) {
  assert.equal(assistant.ids[0], 0);
  assert.deepEqual(assistant.client.getServerVersion(), { name: 'RZ8800-Studio-MCP', version: '1.0' });
  const { tools } = await assistant.client.listTools();
  assert.ok(tools.every((tool) => tool.description && tool.inputSchema.type === 'object'));
  assert.equal(await assistant.failure('brew_coffee'), 'Kein Projekt geoeffnet');
  // Requests and notifications that the studio does not know disturb nothing.
  await assert.rejects(assistant.client.ping(), { code: -32601 });
  await assistant.client.notification({ method: 'notifications/cancelled', params: { requestId: 99 } });
  assert.equal((await assistant.client.listTools()).tools.length, tools.length);
}

const [studioProgram, standinProgram, folder] = process.argv.slice(2);
const studio = await Studio.start(studioProgram, standinProgram, folder);
const transcript = path.join(folder, 'transcript.txt');
console.log(`Transcript: ${transcript}`);
for (const transport of Object.keys(transports)) {
  const assistant = await Assistant.connect(transport, studio.url, transcript);
  await meetsTheStudio(assistant);
  await assistant.close();
  console.log(`${transport}: ${assistant.ids.length} requests`, assistant.errors);
}
studio.stop();
