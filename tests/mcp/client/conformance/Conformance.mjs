// Runs the conformance runner's scenarios for what the studio offers, and tells what each check found.
import { spawnSync } from 'node:child_process';
import { mkdirSync, readdirSync, readFileSync } from 'node:fs';
import path from 'node:path';
import { Studio } from './Studio.mjs';

const scenarios = ['server-initialize', 'tools-list', 'dns-rebinding-protection'];
const runner = path.join(import.meta.dirname, 'node_modules/@modelcontextprotocol/conformance/dist/index.js');

/** The checks that a scenario has written down. */
function checksIn(folder) {
  return readdirSync(folder, { recursive: true })
    .filter((name) => path.basename(name) === 'checks.json')
    .flatMap((name) => JSON.parse(readFileSync(path.join(folder, name), 'utf8')));
}

const [studioProgram, standinProgram, folder] = process.argv.slice(2);
const studio = await Studio.start(studioProgram, standinProgram, folder);
let failures = 0;
for (const scenario of scenarios) {
  const results = path.join(folder, scenario);
  mkdirSync(results);
  const run = ['server', '--url', `${studio.url}/mcp`, '--scenario', scenario, '--output-dir', results];
  const { status, stdout, stderr } = spawnSync(process.execPath, [runner, ...run], { encoding: 'utf8' });
  const checks = checksIn(results);
  for (const check of checks) {
    console.log(`${scenario}: ${check.id} ${check.status}${check.errorMessage ? ` (${check.errorMessage})` : ''}`);
  }
  if (status !== 0 || checks.length === 0) {
    failures += 1;
    console.log(`${scenario}: ended with ${status}\n${stdout}${stderr}`);
  }
}
studio.stop();
process.exit(failures === 0 ? 0 : 1);
